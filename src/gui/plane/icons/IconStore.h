#pragma once
#include "gui/plane/icons/Icons.h"
#include "gui/plane/view/PixelGrid.h"

#include <unordered_map>

namespace lumo::Plane
{

/** The pictures of all icons on show in the process: one drawable for all objects that look alike, and bitmaps of it
    by size and by where they lie between the pixels of the screen. Planes that paint hold it together, by
    juce::SharedResourcePointer. Message thread, or the thread that paints and holds its lock. */
class IconStore
{
public:
    /** How many places within a pixel have a bitmap of their own, across and down: nothing lies more than a sixteenth of
        a pixel from where it should. The benchmark IconPhases measures what that costs against vectors in their exact
        place. Of the pixels that differ at all, the mean is 6.3 levels of 255 for 4 phases, 3.8 for 8, 2.4 for 16 and
        1.4 for 64, which is the unrest of the vectors themselves; a source's bitmaps take 47, 187, 746 and 11,900 kB. */
    static constexpr int phases = 8;
    /** Larger ones, in pixels of the screen, are drawn as vectors. There is one head, and many of the others. */
    static constexpr float largestBitmap = 128, largestHead = 320;
    /** What may be kept; when it is full, all of it is dropped and what shows is drawn again. */
    static constexpr std::size_t mostBytes = 4 << 20;
    static constexpr std::size_t mostDrawables = 256;

    /** Fills a square of the component, turned about its middle by radians. */
    void Draw (juce::Graphics& g, const Icon& icon, juce::Rectangle<float> square, const PixelGrid& pixels,
               float angle = 0);
    /** Valid until the next one is asked for. */
    [[nodiscard]] const juce::Drawable& DrawableOf (const Icon& icon);

    [[nodiscard]] std::size_t BytesKept() const noexcept { return bytes; }
    [[nodiscard]] std::size_t DrawablesKept() const noexcept { return drawables.size(); }

private:
    struct Place
    {
        std::uint64_t icon;
        float side; // in pixels of the screen
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
