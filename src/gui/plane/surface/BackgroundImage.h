#pragma once
#include "text/OrvaneDspString.h"

#include <juce_graphics/juce_graphics.h>

namespace lumo::Plane
{

/** A picture under the scene, a floor plan for instance. One pixel of it is scale times two metres wide. */
struct BackgroundImage
{
    /** 0 "low", 1 "medium", 2 "high"; any other name gives medium. */
    static int QualityNamed (const qel::String& name);
    static qel::String NameOf (int quality);

    /** What ReadImage cannot read gives a null image. */
    void Load (const juce::File& path);
    void SetScale (float fraction);

    juce::String file;
    bool visible = false;
    float opacity = 1.0f;
    float scale = 1.0f; // a fraction
    float angle = 0;    // radians
    float xOffset = 0, yOffset = 0;
    int imageWidth = 0, imageHeight = 0;
    int scaledWidth = 0, scaledHeight = 0;
    int quality = 1;
    juce::Image image;
};

}
