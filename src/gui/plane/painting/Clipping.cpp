#include "gui/plane/painting/Clipping.h"

#include <algorithm>
#include <cmath>

namespace lumo::Plane
{

namespace
{

constexpr double period = 2.0 * static_cast<double> (dashLength);
constexpr double pi = juce::MathConstants<double>::pi;

/** Narrows a line's parameter to the interval between two parallel edges. */
void Narrow (double start, double step, double low, double high, double& first, double& last)
{
    if (step == 0.0) {
        if (start < low || start > high)
            last = first - 1;
        return;
    }
    const double a = (low - start) / step, b = (high - start) / step;
    first = std::max (first, std::min (a, b));
    last = std::min (last, std::max (a, b));
}

double NearestDistance (juce::Point<double> p, juce::Rectangle<double> area)
{
    return p.getDistanceFrom (area.getConstrainedPoint (p));
}

double FarthestDistance (juce::Point<double> p, juce::Rectangle<double> area)
{
    return std::hypot (std::max (std::abs (p.x - area.getX()), std::abs (p.x - area.getRight())),
                       std::max (std::abs (p.y - area.getY()), std::abs (p.y - area.getBottom())));
}

/** The angles, from the centre, covered by a rectangle that does not contain the centre. */
juce::Range<double> AnglesOf (juce::Rectangle<double> area, juce::Point<double> centre)
{
    const auto middle = area.getCentre() - centre;
    const double towards = std::atan2 (middle.y, middle.x);
    juce::Range<double> angles (towards, towards);
    for (const auto& corner : { area.getTopLeft(), area.getTopRight(), area.getBottomLeft(), area.getBottomRight() }) {
        const double angle = std::atan2 (corner.y - centre.y, corner.x - centre.x) - towards;
        angles = angles.getUnionWith (towards + std::remainder (angle, 2 * pi));
    }
    return angles;
}

}

std::optional<juce::Line<float>> VisiblePart (juce::Line<double> line, juce::Rectangle<float> clip)
{
    const auto area = clip.toDouble();
    const auto start = line.getStart();
    const auto step = line.getEnd() - start;
    double first = 0, last = 1;
    Narrow (start.x, step.x, area.getX(), area.getRight(), first, last);
    Narrow (start.y, step.y, area.getY(), area.getBottom(), first, last);
    const double length = line.getLength();
    if (first > last || ! (length > 0))
        return {};
    first = std::floor (first * length / period) * period / length;
    return juce::Line<float> ((start + step * first).toFloat(), (start + step * last).toFloat());
}

bool MeetsCircle (juce::Rectangle<float> area, juce::Point<float> centre, double radius)
{
    const auto at = centre.toDouble();
    return radius >= NearestDistance (at, area.toDouble()) && radius <= FarthestDistance (at, area.toDouble());
}

juce::Path VisibleCircle (juce::Point<float> at, double radius, juce::Rectangle<float> clip)
{
    juce::Path path;
    const auto centre = at.toDouble();
    const auto area = clip.toDouble();
    if (! MeetsCircle (clip, at, radius))
        return path;
    if (area.contains (centre)) {
        const auto r = static_cast<float> (radius);
        path.addEllipse (at.x - r, at.y - r, 2 * r, 2 * r);
        return path;
    }
    const auto angles = AnglesOf (area, centre);
    const double start = std::floor (angles.getStart() * radius / period) * period / radius;
    const double step = std::min (0.1, std::sqrt (1.0 / radius)); // chords are at most 1/8 pixel off the circle
    const auto pointAt = [&] (double angle) {
        return juce::Point<double> (centre.x + radius * std::cos (angle), centre.y + radius * std::sin (angle))
            .toFloat();
    };
    path.startNewSubPath (pointAt (start));
    const auto chords = static_cast<int> (std::max (0.0, std::ceil ((angles.getEnd() - start) / step - 1)));
    for (int i = 1; i <= chords; ++i)
        path.lineTo (pointAt (start + i * step));
    path.lineTo (pointAt (angles.getEnd()));
    return path;
}

}
