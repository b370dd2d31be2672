#pragma once
#include "gui/scene/ViewTransform.h"

#include <juce_graphics/juce_graphics.h>

namespace lumo::Plane
{

/** Where a point of the scene is on the component. */
[[nodiscard]] inline juce::Point<float> OnScreen (const ViewTransform& view, const qel::Point3& metres) noexcept
{
    const auto [x, y] = view.ToScreen (metres);
    return { x, y };
}

/** The component's area. */
[[nodiscard]] inline juce::Rectangle<int> BoundsOf (const ViewTransform& view) noexcept
{
    return { view.width, view.height };
}

}
