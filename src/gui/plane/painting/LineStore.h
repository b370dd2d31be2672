#pragma once
#include "gui/plane/painting/Caption.h"
#include "gui/plane/view/PixelGrid.h"

#include <vector>

namespace lumo::Plane
{

/** Pictures of texts that stand in whole pixels and often come back, as coordinates do while something is dragged:
    the renderer spends more on a dozen letters than on the icon above them. Planes that paint hold it together, by
    juce::SharedResourcePointer. Message thread, or the thread that paints and holds its lock. */
class LineStore
{
public:
    /** When it is full, all of it is dropped and what shows is drawn again. */
    static constexpr std::size_t mostLines = 64;

    /** Centred about a pixel of the component. */
    void Draw (juce::Graphics& g, const juce::String& text, const Caption::Style& style, juce::Colour colour,
               juce::Point<int> centre, const PixelGrid& pixels);

    [[nodiscard]] std::size_t LinesKept() const noexcept { return lines.size(); }

private:
    struct Line
    {
        juce::String text;
        Caption::Style style;
        juce::Colour colour;
        PixelGrid grid; // of a component whose corner is the centre
        juce::Image picture;
        juce::Point<int> topLeft; // from the centre, in pixels of the screen
    };

    [[nodiscard]] const Line& LineOf (const juce::String& text, const Caption::Style& style, juce::Colour colour,
                                      const PixelGrid& grid);

    std::vector<Line> lines;
};

}
