#pragma once
#include <juce_core/juce_core.h>
#include <juce_graphics/juce_graphics.h>

#include <initializer_list>

namespace lumo::Plane
{

/** Builds a square SVG document. Coordinates are relative to its frame. */
class Svg
{
public:
    struct Stop
    {
        float offset; // 0 at the centre, 1 at the rim
        juce::Colour colour;
    };
    struct Outline
    {
        juce::Colour colour;
        float width;
    };
    inline static const Outline noOutline{ {}, 0 };

    explicit Svg (float side);

    /** A radial gradient, for use as a fill. */
    juce::String AddGradient (juce::Point<float> centre, float radius, std::initializer_list<Stop> stops);

    /** Fills: a colour in hexadecimal, a gradient, or "none". Shapes may be translucent and outlined. */
    void AddCircle (juce::Point<float> centre, float radius, const juce::String& fill, float opacity = 1,
                    Outline outline = noOutline);
    void AddPath (const char* data, const juce::String& fill, float opacity = 1, Outline outline = noOutline);
    void AddLine (juce::Point<float> from, juce::Point<float> to, Outline outline);

    [[nodiscard]] static juce::String Hex (juce::Colour colour);

    /** Returns the document and empties the builder. */
    [[nodiscard]] juce::XmlElement Take() { return std::move (root); }

private:
    juce::XmlElement& AddShape (const char* tag, const juce::String& fill, float opacity, Outline outline);

    juce::XmlElement root{ "svg" };
    int numGradients = 0;
};

}
