#pragma once
#include "gui/plane/PlaneOptions.h"
#include "gui/plane/icons/IconStore.h"
#include "gui/plane/objects/Listener.h"
#include "gui/plane/painting/LineStore.h"
#include "gui/plane/surface/Axis.h"
#include "gui/plane/surface/BackgroundImage.h"
#include "gui/plane/surface/Grid.h"
#include "gui/plane/surface/Marks.h"
#include "gui/plane/view/ViewTransform.h"

#include <optional>

namespace lumo::Plane
{

/** What belongs to the surface and not to a source, a speaker or an area. The layers read it through a const reference.
    A flag that has a record of its own lives there; the options hold the others. */
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

    // How it is painted, up to date whenever it is.
    PixelGrid pixels;
    std::optional<juce::SharedResourcePointer<IconStore>> icons;
    std::optional<juce::SharedResourcePointer<LineStore>> lines;
};

}
