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
    /** How many places within a pixel have a bitmap of their own, across and down. */
    static constexpr int phases = 8;
    /** Larger ones, in pixels of the screen, are drawn as vectors. */
    static constexpr int largestBitmap = 128;
    /** What may be kept; when it is full, all of it is dropped and what shows is drawn again. */
    static constexpr std::size_t mostBytes = 4 << 20;
    static constexpr std::size_t mostDrawables = 256;

    /** Fills a square of the component. */
    void Draw (juce::Graphics& g, const Icon& icon, juce::Rectangle<float> square, const PixelGrid& pixels);
    /** Valid until the next one is asked for. */
    [[nodiscard]] const juce::Drawable& DrawableOf (const Icon& icon);

    [[nodiscard]] std::size_t BytesKept() const noexcept { return bytes; }
    [[nodiscard]] std::size_t DrawablesKept() const noexcept { return drawables.size(); }

private:
    struct Place
    {
        std::uint64_t icon;
        float side; // in pixels of the screen
        std::uint32_t phase;
        bool operator== (const Place& other) const noexcept
        {
            return icon == other.icon && side == other.side && phase == other.phase;
        }
    };
    struct Hash
    {
        std::size_t operator() (const Place& place) const noexcept;
    };

    const juce::Image& BitmapOf (const Icon& icon, float side, juce::Point<int> phase);

    std::unordered_map<std::uint64_t, std::unique_ptr<juce::Drawable>> drawables;
    std::unordered_map<Place, juce::Image, Hash> bitmaps;
    std::size_t bytes = 0; // of the bitmaps
};

}
