#pragma once
#include "gui/plane/view/PixelGrid.h"

namespace lumo::Plane
{

/** The picture of all that seldom moves, in the screen's own pixels, so that a frame costs one blit instead of a
    drawing. It is drawn anew where it is dirty, when it is next wanted. */
class StaticCache
{
public:
    void MarkDirty() noexcept { wholeIsDirty = true; }
    /** A part, in pixels of the component. */
    void MarkDirty (juce::Rectangle<int> area);
    /** Whether marking parts makes no difference. */
    [[nodiscard]] bool IsWhollyDirty() const noexcept { return wholeIsDirty; }
    /** Drops the picture: the next one has this size, in pixels of the component. */
    void Resize (int newWidth, int newHeight);
    /** Drops the picture until it is wanted again. */
    void Release();

    /** Blits the picture where the context wants it, brought up to date by the given function; nothing while the size
        is empty. Without transparency it is an RGB image, which blits many times faster. */
    template <typename Function>
    void Draw (juce::Graphics& g, const PixelGrid& pixels, bool opaque, Function&& draw)
    {
        if (size.isEmpty())
            return;
        Prepare (pixels, opaque);
        if (const auto parts = TakeDirtyParts(); ! parts.isEmpty()) {
            juce::Graphics onImage (image);
            onImage.reduceClipRegion (parts);
            onImage.addTransform (grid.Transform());
            draw (onImage);
        }
        Blit (g);
    }

private:
    void Prepare (const PixelGrid& pixels, bool opaque);
    /** In pixels of the picture. */
    [[nodiscard]] juce::RectangleList<int> TakeDirtyParts();
    void Blit (juce::Graphics& g) const;

    juce::Image image;
    PixelGrid grid;
    juce::Rectangle<int> size;
    juce::RectangleList<int> dirtyParts;
    bool wholeIsDirty = true;
};

}
