#pragma once
#include "gui/plane/icons/Icons.h"
#include "gui/plane/view/PixelGrid.h"

#include <unordered_map>

namespace lumo::Plane
{

/** The process's icon cache: one drawable per appearance, with bitmaps by size and subpixel position. Shared by the
    planes that paint, through juce::SharedResourcePointer. Message thread, or the painting thread while it holds the
    lock. */
class IconStore
{
public:
    /** Subpixel positions with a bitmap of their own, per axis: nothing is drawn more than a sixteenth of a pixel off.
        The benchmark IconPhases measures the error against vector drawing at the exact position. Over the pixels that
        differ, the mean is 6.3 levels of 255 for 4 phases, 3.8 for 8, 2.4 for 16 and 1.4 for 64, the vectors' own
        noise; a source's bitmaps take 47, 187, 746 and 11,900 kB. */
    static constexpr int phases = 8;
    /** Larger icons, in screen pixels, are drawn as vectors. There is one head, and many of the others. */
    static constexpr float largestBitmap = 128, largestHead = 320;
    /** Limit of the cache; when full it is emptied, and visible icons are rendered again. */
    static constexpr std::size_t mostBytes = 4 << 20;
    static constexpr std::size_t mostDrawables = 256;

    /** Fills a square of the component, rotated about its centre by an angle in radians. */
    void Draw (juce::Graphics& g, const Icon& icon, juce::Rectangle<float> square, const PixelGrid& pixels,
               float angle = 0);
    /** Valid until the next call. */
    [[nodiscard]] const juce::Drawable& DrawableOf (const Icon& icon);

    [[nodiscard]] std::size_t BytesKept() const noexcept { return bytes; }
    [[nodiscard]] std::size_t DrawablesKept() const noexcept { return drawables.size(); }

private:
    struct Place
    {
        std::uint64_t icon;
        float side; // in screen pixels
        float angle;
        std::uint32_t phase;
        bool operator== (const Place& other) const noexcept
        {
            return icon == other.icon && side == other.side && angle == other.angle && phase == other.phase;
        }
    };
    struct Hash
    {
        std::size_t operator() (const Place& place) const noexcept;
    };

    const juce::Image& BitmapOf (const Icon& icon, float side, float angle, juce::Point<int> phase);

    std::unordered_map<std::uint64_t, std::unique_ptr<juce::Drawable>> drawables;
    std::unordered_map<Place, juce::Image, Hash> bitmaps;
    std::size_t bytes = 0; // of the bitmaps
};

}
