#include "gui/plane/icons/IconStore.h"

#include <cmath>

namespace lumo::Plane
{

namespace
{

/** The nearest of the places within a pixel that have a bitmap; may be the next pixel's first. */
juce::Point<int> NearestPhase (juce::Point<float> place)
{
    const auto nearest = [] (float x) { return static_cast<int> (std::floor (x * IconStore::phases + 0.5f)); };
    return { nearest (place.x), nearest (place.y) };
}

}

std::size_t IconStore::Hash::operator() (const Place& place) const noexcept
{
    const auto mixed = (place.icon ^ static_cast<std::uint64_t> (place.side * 16.0f) << 40 ^
                        static_cast<std::uint64_t> (place.phase) << 52) *
                       0x9E3779B97F4A7C15u;
    return static_cast<std::size_t> (mixed ^ mixed >> 32);
}

const juce::Drawable& IconStore::DrawableOf (const Icon& icon)
{
    const auto key = icon.Key();
    if (const auto found = drawables.find (key); found != drawables.end())
        return *found->second;
    if (drawables.size() >= mostDrawables)
        drawables.clear();
    return *drawables.emplace (key, MakeDrawable (DocumentOf (icon))).first->second;
}

const juce::Image& IconStore::BitmapOf (const Icon& icon, float side, juce::Point<int> phase)
{
    const Place place{ icon.Key(), side, static_cast<std::uint32_t> (phase.y * phases + phase.x) };
    if (const auto found = bitmaps.find (place); found != bitmaps.end())
        return found->second;
    const int pixels = static_cast<int> (std::ceil (side)) + 2; // a pixel more for each part of one that it begins in
    const auto size = static_cast<std::size_t> (pixels * pixels) * sizeof (juce::PixelARGB);
    if (bytes + size > mostBytes) {
        bitmaps.clear();
        bytes = 0;
    }
    juce::Image bitmap (juce::Image::ARGB, pixels, pixels, true, juce::SoftwareImageType());
    juce::Graphics g (bitmap);
    DrawableOf (icon).drawWithin (g,
                                  juce::Rectangle<float> (side, side) + phase.toFloat() / static_cast<float> (phases),
                                  juce::RectanglePlacement::centred, 1.0f);
    bytes += size;
    return bitmaps.emplace (place, std::move (bitmap)).first->second;
}

void IconStore::Draw (juce::Graphics& g, const Icon& icon, juce::Rectangle<float> square, const PixelGrid& pixels)
{
    const float side = square.getWidth() * pixels.scale;
    if (side > static_cast<float> (largestBitmap))
        return DrawableOf (icon).drawWithin (g, square, juce::RectanglePlacement::centred, 1.0f);
    const auto place = NearestPhase (pixels.ToScreen (square.getPosition()));
    const juce::Point<int> whole (juce::roundToInt (std::floor (static_cast<float> (place.x) / phases)),
                                  juce::roundToInt (std::floor (static_cast<float> (place.y) / phases)));
    pixels.DrawPixels (g, BitmapOf (icon, side, place - whole * phases), whole);
}

}
