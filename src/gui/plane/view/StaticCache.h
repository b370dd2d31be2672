#pragma once
#include <juce_graphics/juce_graphics.h>

namespace lumo::Plane
{

/** The picture of all that seldom moves, so that a frame costs one blit instead of a drawing. */
class StaticCache
{
public:
    void MarkDirty() noexcept { dirty = true; }
    /** Drops the picture: the next one has this size. */
    void Resize (int newWidth, int newHeight);

    /** The picture, drawn anew by the given function if it is dirty; a null image while the size is empty.
        Without transparency it is an RGB image, which blits many times faster. */
    template <typename Draw>
    const juce::Image& Refresh (bool opaque, Draw&& draw)
    {
        if (dirty && width > 0 && height > 0) {
            Prepare (opaque);
            juce::Graphics g (image);
            draw (g);
            dirty = false;
        }
        return image;
    }

private:
    void Prepare (bool opaque);

    juce::Image image;
    int width = 0, height = 0;
    bool dirty = true;
};

}
