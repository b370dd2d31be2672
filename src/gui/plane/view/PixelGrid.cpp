#include "gui/plane/view/PixelGrid.h"

#include <cmath>

namespace lumo::Plane
{

PixelGrid PixelGrid::Of (const juce::Component& component, const juce::Graphics& g)
{
    PixelGrid grid;
    grid.scale = g.getInternalContext().getPhysicalPixelScaleFactor();
    const auto corner = component.getTopLevelComponent()->getLocalPoint (&component, juce::Point<float>()) * grid.scale;
    grid.phase = { corner.x - std::floor (corner.x), corner.y - std::floor (corner.y) };
    return grid;
}

juce::Rectangle<int> PixelGrid::ToScreen (juce::Rectangle<int> area) const noexcept
{
    const auto topLeft = ToScreen (area.getTopLeft().toFloat()),
               bottomRight = ToScreen (area.getBottomRight().toFloat());
    return juce::Rectangle<float> (topLeft, bottomRight).getSmallestIntegerContainer();
}

juce::AffineTransform PixelGrid::Transform() const noexcept
{
    return juce::AffineTransform::scale (scale).translated (phase);
}

void PixelGrid::DrawPixels (juce::Graphics& g, const juce::Image& picture, juce::Point<int> topLeftOnScreen) const
{
    // The renderer truncates positions to 256ths of a pixel, and blits only up to an eighth of a pixel past a whole
    // one: slightly ahead, rounding cannot fall short of it.
    constexpr float ahead = 1.0f / 16;
    const auto place = (topLeftOnScreen.toFloat() - phase + juce::Point<float> (ahead, ahead)) / scale;
    g.setColour (juce::Colours::black); // opaque
    g.drawImageTransformed (picture, juce::AffineTransform::scale (1 / scale).translated (place));
}

}
