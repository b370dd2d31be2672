#pragma once
#include "gui/plane/PlaneComponent.h"
#include "support/ImageDifference.h"

/** A snapshot of the plane. */
[[nodiscard]] inline juce::Image Picture (lumo::PlaneComponent& plane)
{
    juce::Image image (juce::Image::ARGB, plane.getWidth(), plane.getHeight(), true, juce::SoftwareImageType());
    juce::Graphics g (image);
    plane.paintEntireComponent (g, true);
    return image;
}
