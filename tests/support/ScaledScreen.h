#pragma once
#include <juce_gui_basics/juce_gui_basics.h>

#include <cmath>

/** A screen of any scale with a component somewhere in a window. Collects invalidated areas, and repaints only those
    when a frame is due. */
class ScaledScreen
{
public:
    ScaledScreen (juce::Component& shownComponent, float screenScale, juce::Point<int> place = { 7, 13 })
        : shown (shownComponent)
    {
        window.setSize (place.x + shown.getWidth() + 9, place.y + shown.getHeight() + 5);
        window.setOpaque (true);
        window.setVisible (true);
        window.setCachedComponentImage (new Hearing (dirty));
        shown.setTopLeftPosition (place);
        window.addAndMakeVisible (shown);
        MoveToScale (screenScale);
    }
    ~ScaledScreen() { window.removeChildComponent (&shown); }

    ScaledScreen (const ScaledScreen&) = delete;
    ScaledScreen& operator= (const ScaledScreen&) = delete;

    /** Moves the window to a screen of another scale, which repaints it at once. */
    void MoveToScale (float screenScale)
    {
        scale = screenScale;
        const auto extent = [&] (int length) {
            return static_cast<int> (std::ceil (static_cast<float> (length) * scale));
        };
        image = juce::Image (juce::Image::RGB, extent (window.getWidth()), extent (window.getHeight()), true,
                             juce::SoftwareImageType());
        dirty = window.getLocalBounds();
        Frame();
    }

    /** Returns what was repainted, in component pixels. */
    juce::RectangleList<int> Frame()
    {
        juce::RectangleList<int> onScreen, ofShown;
        for (const auto& area : std::exchange (dirty, {})) {
            onScreen.add (
                (area * static_cast<double> (scale)).getIntersection (image.getBounds())); // as X11 windows do
            ofShown.add (area - shown.getPosition());
        }
        if (! onScreen.isEmpty()) {
            Renderer renderer (image, {}, onScreen);
            renderer.addTransform (juce::AffineTransform::scale (scale));
            juce::Graphics g (renderer);
            window.paintEntireComponent (g, true);
            pixelsOfImages = renderer.pixelsOfImages;
        }
        return ofShown;
    }

    [[nodiscard]] const juce::Image& Picture() const { return image; }
    /** How many pixels of images the last frame passed to the renderer. */
    [[nodiscard]] int PixelsOfImages() const { return pixelsOfImages; }

private:
    struct Window : juce::Component
    {
        void paint (juce::Graphics& g) override { g.fillAll (juce::Colours::black); }
    };

    struct Renderer : juce::LowLevelGraphicsSoftwareRenderer
    {
        using LowLevelGraphicsSoftwareRenderer::LowLevelGraphicsSoftwareRenderer;
        void drawImage (const juce::Image& drawn, const juce::AffineTransform& transform) override
        {
            pixelsOfImages += drawn.getWidth() * drawn.getHeight();
            LowLevelGraphicsSoftwareRenderer::drawImage (drawn, transform);
        }
        int pixelsOfImages = 0;
    };

    struct Hearing : juce::CachedComponentImage
    {
        explicit Hearing (juce::RectangleList<int>& list) : heard (list) {}
        void paint (juce::Graphics&) override {}
        bool invalidateAll() override { return false; }
        bool invalidate (const juce::Rectangle<int>& area) override
        {
            heard.add (area);
            return false;
        }
        void releaseResources() override {}
        juce::RectangleList<int>& heard;
    };

    juce::Component& shown;
    float scale = 1;
    juce::RectangleList<int> dirty;
    int pixelsOfImages = 0;
    Window window;
    juce::Image image;
};
