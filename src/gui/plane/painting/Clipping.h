#pragma once
#include <juce_graphics/juce_graphics.h>

#include <optional>

/** Long lines and large circles are cut to what can be seen before they are dashed: at a great zoom a grid line would
    otherwise be millions of dashes long. Pixels. */
namespace lumo::Plane
{

/** Dashes are this long, and so are the gaps. */
inline constexpr float dashLength = 5.0f;

/** The part of a line inside a rectangle, from the start of a dash on. */
[[nodiscard]] std::optional<juce::Line<float>> VisiblePart (juce::Line<double> line, juce::Rectangle<float> clip);

/** Whether any of a circle's line lies in a rectangle. */
[[nodiscard]] bool MeetsCircle (juce::Rectangle<float> area, juce::Point<float> centre, double radius);
/** A circle, or the arcs of it that may be seen; empty if none is. Precise for radii of any size. */
[[nodiscard]] juce::Path VisibleCircle (juce::Point<float> centre, double radius, juce::Rectangle<float> clip);

}
