#pragma once
#include <juce_graphics/juce_graphics.h>

#include <memory>

namespace lumo::Plane
{

/** A line of text centred about a point. Laid out on first use, and once per font and width. Message thread, or the
    painting thread while it holds the lock. */
class Caption
{
public:
    struct Style
    {
        float height; // font height in pixels
        bool bold;
        float width; // longer text ends in an ellipsis

        bool operator== (const Style& other) const noexcept
        {
            return height == other.height && bold == other.bold && width == other.width;
        }
    };

    explicit Caption (juce::String initial) : text (std::move (initial)) {}

    void Set (juce::String newText);
    [[nodiscard]] const juce::String& Text() const noexcept { return text; }

    /** All pixels it may touch, including accents above the line and overhanging letters. */
    [[nodiscard]] juce::Rectangle<float> Extent (juce::Point<float> centre, const Style& style) const;
    void Draw (juce::Graphics& g, juce::Point<float> centre, const Style& style) const;

private:
    struct Layout
    {
        Style style;
        juce::Font font;
        juce::GlyphArrangement glyphs; // about the origin
        juce::Rectangle<float> extent;
    };

    [[nodiscard]] const Layout& LaidOut (const Style& style) const;

    juce::String text;
    mutable std::unique_ptr<const Layout> layout;
};

}
