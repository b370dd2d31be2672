#include "gui/plane/view/StaticCache.h"

#include <utility>

namespace lumo::Plane
{

namespace
{

// With more, clipping costs the renderer more than it saves.
constexpr int mostParts = 8;

}

void StaticCache::MarkDirty (juce::Rectangle<int> area)
{
    if (wholeIsDirty)
        return;
    dirtyParts.add (area.getIntersection (size));
    wholeIsDirty = dirtyParts.getNumRectangles() > mostParts;
}

void StaticCache::Resize (int newWidth, int newHeight)
{
    size = { newWidth, newHeight };
    Release();
}

void StaticCache::Release()
{
    image = {};
    MarkDirty();
}

void StaticCache::Prepare (const PixelGrid& pixels, bool opaque)
{
    const auto format = opaque ? juce::Image::RGB : juce::Image::ARGB;
    if (image.isValid() && image.getFormat() == format && grid == pixels)
        return;
    grid = pixels;
    const auto extent = grid.ToScreen (size);
    image = juce::Image (format, extent.getWidth(), extent.getHeight(), false, juce::SoftwareImageType());
    MarkDirty();
}

juce::RectangleList<int> StaticCache::TakeDirtyParts()
{
    const auto logical = std::exchange (dirtyParts, {});
    juce::RectangleList<int> parts;
    if (std::exchange (wholeIsDirty, false))
        parts = image.getBounds();
    else
        for (const auto& part : logical)
            parts.add (grid.ToScreen (part).getIntersection (image.getBounds()));
    if (image.hasAlphaChannel())
        for (const auto& part : parts)
            image.clear (part);
    return parts;
}

/** Passes only the visible part to the renderer, which builds a table for every line of an image, visible or not. */
void StaticCache::Blit (juce::Graphics& g) const
{
    const auto shown = grid.ToScreen (g.getClipBounds()).getIntersection (image.getBounds());
    if (! shown.isEmpty())
        grid.DrawPixels (g, image.getClippedImage (shown), shown.getPosition());
}

}
