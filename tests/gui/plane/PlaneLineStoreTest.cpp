#include "gui/plane/painting/LineStore.h"

#include <gtest/gtest.h>

using namespace lumo::Plane;

namespace
{

constexpr Caption::Style style{ 10, false, 100 };

juce::Image Canvas()
{
    juce::Image image (juce::Image::RGB, 160, 60, false, juce::SoftwareImageType());
    image.clear (image.getBounds(), juce::Colour (0xFFB5B5B5));
    return image;
}

}

/** At every scale and subpixel position. */
TEST (PlaneLineStore, PicturesLookAsTheirLettersDo)
{
    LineStore store;
    for (const auto* text : { "(0.5,-1.2,0.0)", "-179", "a text that is much too long for its place by far" })
        for (const auto& pixels : { PixelGrid{ 1, {} }, PixelGrid{ 1.25f, {} }, PixelGrid{ 1.25f, { 0.75f, 0.25f } },
                                    PixelGrid{ 1.5f, { 0.5f, 0 } }, PixelGrid{ 2, {} } }) {
            auto picture = Canvas(), letters = Canvas();
            juce::Graphics onPicture (picture), onLetters (letters);
            for (auto* g : { &onPicture, &onLetters })
                g->addTransform (pixels.Transform());
            onLetters.setColour (juce::Colours::black);
            Caption (text).Draw (onLetters, { 41, 17 }, style);
            store.Draw (onPicture, text, style, juce::Colours::black, { 41, 17 }, pixels);
            double sum = 0, ink = 0;
            for (int y = 0; y < 60; ++y)
                for (int x = 0; x < 160; ++x) {
                    sum += std::abs (picture.getPixelAt (x, y).getRed() - letters.getPixelAt (x, y).getRed());
                    ink += 0xB5 - letters.getPixelAt (x, y).getRed();
                }
            EXPECT_GT (ink, 2000) << text;
            EXPECT_LT (sum, 0.03 * ink) << text << " at " << pixels.scale << ", " << pixels.phase.toString();
        }
}

TEST (PlaneLineStore, KeepsWhatComesBackAndIsBounded)
{
    LineStore store;
    auto canvas = Canvas();
    juce::Graphics g (canvas);
    for (int i = 0; i < 1000; ++i) {
        store.Draw (g, juce::String (i / 2), style, juce::Colours::white, { 80, 30 }, {});
        EXPECT_LE (store.LinesKept(), LineStore::mostLines);
    }
    const auto kept = store.LinesKept();
    store.Draw (g, "499", style, juce::Colours::white, { 20, 20 }, {});
    EXPECT_EQ (store.LinesKept(), kept) << "in another place";
    store.Draw (g, "499", style, juce::Colours::black, { 20, 20 }, {});
    EXPECT_EQ (store.LinesKept(), kept + 1);
    store.Draw (g, "", style, juce::Colours::black, { 20, 20 }, {});
}
