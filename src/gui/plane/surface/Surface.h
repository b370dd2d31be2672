#pragma once
#include "gui/plane/PlaneOptions.h"
#include "gui/plane/icons/IconStore.h"
#include "gui/plane/objects/Listener.h"
#include "gui/plane/painting/LineStore.h"
#include "gui/plane/surface/Axis.h"
#include "gui/plane/surface/BackgroundImage.h"
#include "gui/plane/surface/Grid.h"
#include "gui/plane/surface/Marks.h"
#include "gui/plane/view/OnScreen.h"

#include <optional>

namespace lumo::Plane
{

/** State of the surface rather than of sources, speakers or areas; read-only for the layers. Flags are in their own
    structs where there is one, otherwise in the options. */
struct Surface
{
    bool viewerVisible = true;
    BackgroundImage backgroundImage;
    Grid grid;
    Axis axis;
    Anchors anchors;
    Shoebox shoebox;
    Legend legend;
    Background background;
    Listener listener;
    ViewTransform viewTransform;
    PlaneOptions options;
    Lasso lasso;

    // Painting state, updated before every paint.
    PixelGrid pixels;
    std::optional<juce::SharedResourcePointer<IconStore>> icons;
    std::optional<juce::SharedResourcePointer<LineStore>> lines;
};

}
