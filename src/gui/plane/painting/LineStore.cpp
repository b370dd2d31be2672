#include "gui/plane/painting/LineStore.h"

#include <algorithm>
#include <cmath>

namespace lumo::Plane
{

const LineStore::Line& LineStore::LineOf (const juce::String& text, const Caption::Style& style, juce::Colour colour,
                                          const PixelGrid& grid)
{
    const auto found = std::find_if (lines.begin(), lines.end(), [&] (const Line& line) {
        return line.grid == grid && line.colour == colour && line.style == style && line.text == text;
    });
    if (found != lines.end())
        return *found;
    if (lines.size() >= mostLines)
        lines.clear();

    const Caption caption (text);
    const auto extent = grid.ToScreen (caption.Extent ({}, style).getSmallestIntegerContainer());
    auto& line = lines.emplace_back (Line{ text, style, colour, grid, {}, extent.getPosition() });
    if (extent.isEmpty())
        return line;
    line.picture =
        juce::Image (juce::Image::ARGB, extent.getWidth(), extent.getHeight(), true, juce::SoftwareImageType());
    juce::Graphics g (line.picture);
    g.addTransform (grid.Transform().translated (-extent.getPosition().toFloat()));
    g.setColour (colour);
    caption.Draw (g, {}, style);
    return line;
}

void LineStore::Draw (juce::Graphics& g, const juce::String& text, const Caption::Style& style, juce::Colour colour,
                      juce::Point<int> centre, const PixelGrid& pixels)
{
    const auto place = pixels.ToScreen (centre.toFloat());
    const juce::Point<float> whole (std::floor (place.x), std::floor (place.y));
    const auto& line = LineOf (text, style, colour, { pixels.scale, place - whole });
    if (line.picture.isValid())
        pixels.DrawPixels (g, line.picture, whole.toInt() + line.topLeft);
}

}
