#include "gui/plane/icons/Svg.h"

namespace lumo::Plane
{

Svg::Svg (float side)
{
    root.setAttribute ("xmlns", "http://www.w3.org/2000/svg");
    root.setAttribute ("version", "1.1");
    root.setAttribute ("width", side);
    root.setAttribute ("height", side);
    root.setAttribute ("viewBox", "0 0 " + juce::String (side) + " " + juce::String (side));
    auto& field = AddShape ("rect", "none", 1, noOutline);
    field.setAttribute ("width", side);
    field.setAttribute ("height", side);
}

/** Six digits: alpha is a separate attribute, because readers disagree about eight digits. */
juce::String Svg::Hex (juce::Colour colour) { return "#" + colour.toDisplayString (false); }

juce::String Svg::AddGradient (juce::Point<float> centre, float radius, std::initializer_list<Stop> stops)
{
    const juce::String id = "XMLID_" + juce::String (++numGradients) + "_";
    auto* gradient = root.createNewChildElement ("radialGradient");
    gradient->setAttribute ("id", id);
    gradient->setAttribute ("cx", centre.x);
    gradient->setAttribute ("cy", centre.y);
    gradient->setAttribute ("r", radius);
    gradient->setAttribute ("gradientUnits", "userSpaceOnUse");
    for (const auto& stop : stops) {
        auto* child = gradient->createNewChildElement ("stop");
        child->setAttribute ("offset", stop.offset);
        child->setAttribute ("style", "stop-color:" + Hex (stop.colour));
        if (! stop.colour.isOpaque())
            child->setAttribute ("stop-opacity", stop.colour.getFloatAlpha());
    }
    return "url(#" + id + ")";
}

juce::XmlElement& Svg::AddShape (const char* tag, const juce::String& fill, float opacity, Outline outline)
{
    auto& shape = *root.createNewChildElement (tag);
    shape.setAttribute ("fill", fill);
    if (opacity < 1)
        shape.setAttribute ("fill-opacity", opacity);
    if (outline.width > 0) {
        shape.setAttribute ("stroke", Hex (outline.colour));
        shape.setAttribute ("stroke-width", outline.width);
        if (! outline.colour.isOpaque())
            shape.setAttribute ("stroke-opacity", outline.colour.getFloatAlpha());
    }
    return shape;
}

void Svg::AddCircle (juce::Point<float> centre, float radius, const juce::String& fill, float opacity, Outline outline)
{
    auto& circle = AddShape ("circle", fill, opacity, outline);
    circle.setAttribute ("cx", centre.x);
    circle.setAttribute ("cy", centre.y);
    circle.setAttribute ("r", radius);
}

void Svg::AddPath (const char* data, const juce::String& fill, float opacity, Outline outline)
{
    AddShape ("path", fill, opacity, outline).setAttribute ("d", data);
}

void Svg::AddLine (juce::Point<float> from, juce::Point<float> to, Outline outline)
{
    auto& line = AddShape ("line", "none", 1, outline);
    line.setAttribute ("x1", from.x);
    line.setAttribute ("y1", from.y);
    line.setAttribute ("x2", to.x);
    line.setAttribute ("y2", to.y);
    line.setAttribute ("stroke-linecap", "round");
}

}
