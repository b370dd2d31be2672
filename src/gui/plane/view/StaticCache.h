#pragma once
#include "gui/plane/view/PixelGrid.h"

namespace lumo::Plane
{

/** Caches everything that seldom changes as an image in screen pixels, so that a frame costs one blit. Dirty parts are
    redrawn on demand. */
class StaticCache
{
public:
    void MarkDirty() noexcept { wholeIsDirty = true; }
    /** Marks a part, in component pixels. */
    void MarkDirty (juce::Rectangle<int> area);
    /** Whether marking parts has no further effect. */
    [[nodiscard]] bool IsWhollyDirty() const noexcept { return wholeIsDirty; }
    /** Frees the image; the next one has this size, in component pixels. */
    void Resize (int newWidth, int newHeight);
    /** Frees the image until it is needed again. */
    void Release();

    /** Blits the image where the context needs it, after updating it with the given function; does nothing while the
        size is empty. Without transparency it is an RGB image, which blits many times faster. */
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
    /** In image pixels. */
    [[nodiscard]] juce::RectangleList<int> TakeDirtyParts();
    void Blit (juce::Graphics& g) const;

    juce::Image image;
    PixelGrid grid;
    juce::Rectangle<int> size;
    juce::RectangleList<int> dirtyParts;
    bool wholeIsDirty = true;
};

}
