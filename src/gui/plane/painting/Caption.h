#pragma once
#include <juce_graphics/juce_graphics.h>

#include <memory>

namespace lumo::Plane
{

/** A line of text that is drawn centred about a point. Its glyphs are laid out once for each font and width, and not
    before it is seen. Message thread, or the thread that paints and holds its lock. */
class Caption
{
public:
    struct Style
    {
        float height; // of the font, in pixels
        bool bold;
        float width; // what does not fit ends in an ellipsis

        bool operator== (const Style& other) const noexcept
        {
            return height == other.height && bold == other.bold && width == other.width;
        }
    };

    explicit Caption (juce::String initial) : text (std::move (initial)) {}

    void Set (juce::String newText);
    [[nodiscard]] const juce::String& Text() const noexcept { return text; }

    /** All pixels that it may touch, with room for accents above the line and for what leans out of it. */
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
