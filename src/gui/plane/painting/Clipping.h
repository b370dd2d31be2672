#pragma once
#include <juce_graphics/juce_graphics.h>

#include <optional>

/** Clips long lines and large circles to the visible area before dashing: at high zoom a grid line would otherwise have
    millions of dashes. Pixels. */
namespace lumo::Plane
{

/** Length of dashes and gaps. */
inline constexpr float dashLength = 5.0f;

/** The part of a line inside a rectangle, starting at the start of a dash. */
[[nodiscard]] std::optional<juce::Line<float>> VisiblePart (juce::Line<double> line, juce::Rectangle<float> clip);

/** Whether a circle's line intersects a rectangle. */
[[nodiscard]] bool MeetsCircle (juce::Rectangle<float> area, juce::Point<float> centre, double radius);
/** A circle, or its possibly visible arcs; empty if there are none. Accurate for radii of any size. */
[[nodiscard]] juce::Path VisibleCircle (juce::Point<float> centre, double radius, juce::Rectangle<float> clip);

}
