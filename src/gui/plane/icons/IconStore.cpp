#include "gui/plane/icons/IconStore.h"

#include <cmath>

namespace lumo::Plane
{

namespace
{

/** The nearest subpixel position that has a bitmap; may be the next pixel's first. */
juce::Point<int> NearestPhase (juce::Point<float> place)
{
    const auto nearest = [] (float x) { return static_cast<int> (std::floor (x * IconStore::phases + 0.5f)); };
    return { nearest (place.x), nearest (place.y) };
}

int WholePixels (int phases) { return juce::roundToInt (std::floor (static_cast<float> (phases) / IconStore::phases)); }

/** Side of the square that contains an icon at any rotation. */
float BoxOf (float side, float angle) { return angle == 0.0f ? side : 1.4143f * side; }

void DrawVectors (juce::Graphics& g, const juce::Drawable& icon, juce::Rectangle<float> square, float angle)
{
    const juce::Graphics::ScopedSaveState state (g);
    if (angle != 0.0f)
        g.addTransform (juce::AffineTransform::rotation (angle, square.getCentreX(), square.getCentreY()));
    icon.drawWithin (g, square, juce::RectanglePlacement::centred, 1.0f);
}

}

std::size_t IconStore::Hash::operator() (const Place& place) const noexcept
{
    auto mixed = place.icon;
    for (const std::uint32_t part :
         { static_cast<std::uint32_t> (place.side * 16),
           static_cast<std::uint32_t> (static_cast<std::int32_t> (place.angle * 65536)), place.phase })
        mixed = (mixed ^ part) * 0x9E3779B97F4A7C15u ^ mixed >> 32;
    return static_cast<std::size_t> (mixed);
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

const juce::Image& IconStore::BitmapOf (const Icon& icon, float side, float angle, juce::Point<int> phase)
{
    const Place place{ icon.Key(), side, angle, static_cast<std::uint32_t> (phase.y * phases + phase.x) };
    if (const auto found = bitmaps.find (place); found != bitmaps.end())
        return found->second;
    const float box = BoxOf (side, angle);
    const int pixels = static_cast<int> (std::ceil (box)) + 2; // plus a pixel for each partially covered one
    const auto size = static_cast<std::size_t> (pixels * pixels) * sizeof (juce::PixelARGB);
    if (bytes + size > mostBytes) {
        bitmaps.clear();
        bytes = 0;
    }
    juce::Image bitmap (juce::Image::ARGB, pixels, pixels, true, juce::SoftwareImageType());
    juce::Graphics g (bitmap);
    const auto centre = phase.toFloat() / static_cast<float> (phases) + juce::Point<float> (box, box) * 0.5f;
    DrawVectors (g, DrawableOf (icon), juce::Rectangle<float> (side, side).withCentre (centre), angle);
    bytes += size;
    return bitmaps.emplace (place, std::move (bitmap)).first->second;
}

void IconStore::Draw (juce::Graphics& g, const Icon& icon, juce::Rectangle<float> square, const PixelGrid& pixels,
                      float angle)
{
    const float side = square.getWidth() * pixels.scale;
    if (side > (icon.kind == Icon::Kind::head ? largestHead : largestBitmap))
        return DrawVectors (g, DrawableOf (icon), square, angle);
    const float box = BoxOf (side, angle);
    const auto place = NearestPhase (pixels.ToScreen (square.getCentre()) - juce::Point<float> (box, box) * 0.5f);
    const juce::Point<int> whole (WholePixels (place.x), WholePixels (place.y));
    pixels.DrawPixels (g, BitmapOf (icon, side, angle, place - whole * phases), whole);
}

}
