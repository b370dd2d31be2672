#pragma once
#include "gui/plane/painting/Caption.h"
#include "gui/plane/view/PixelGrid.h"

#include <vector>

namespace lumo::Plane
{

/** Cache of text images at whole pixels for recurring texts, such as coordinates during a drag: the renderer spends
    more on a dozen letters than on the icon above them. Shared by the planes that paint, through
    juce::SharedResourcePointer. Message thread, or the painting thread while it holds the lock. */
class LineStore
{
public:
    /** Limit of the cache; when full it is emptied, and visible lines are rendered again. */
    static constexpr std::size_t mostLines = 64;

    /** Centred about a component pixel. */
    void Draw (juce::Graphics& g, const juce::String& text, const Caption::Style& style, juce::Colour colour,
               juce::Point<int> centre, const PixelGrid& pixels);

    [[nodiscard]] std::size_t LinesKept() const noexcept { return lines.size(); }

private:
    struct Line
    {
        juce::String text;
        Caption::Style style;
        juce::Colour colour;
        PixelGrid grid; // of a component whose corner is at the centre
        juce::Image picture;
        juce::Point<int> topLeft; // relative to the centre, in screen pixels
    };

    [[nodiscard]] const Line& LineOf (const juce::String& text, const Caption::Style& style, juce::Colour colour,
                                      const PixelGrid& grid);

    std::vector<Line> lines;
};

}
