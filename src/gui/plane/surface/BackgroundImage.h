#pragma once
#include "text/OrvaneDspString.h"

#include <juce_graphics/juce_graphics.h>

namespace lumo::Plane
{

/** An image under the scene, such as a floor plan. One image pixel is 2 * scale metres wide. */
struct BackgroundImage
{
    /** 0 "low", 1 "medium", 2 "high"; any other name returns medium. */
    static int QualityNamed (const qel::String& name);
    static qel::String NameOf (int quality);

    /** The image is null if ReadImage cannot read the file. */
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
