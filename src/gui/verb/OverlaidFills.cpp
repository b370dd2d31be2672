#include "gui/verb/OverlaidFills.h"

#include <algorithm>

namespace halcyra
{

namespace
{

/** Consecutive pixels of equal coverage in a row: from x to end, at a level up to 255. */
struct Run
{
    int x, end, level;
};

/** The runs of a path, row by row from the top, as the edge table iterates them. */
class Coverage
{
public:
    Coverage (const juce::Path& path, juce::Rectangle<int> area, const juce::AffineTransform& transform)
        : top (area.getY())
    {
        starts.reserve (static_cast<std::size_t> (area.getHeight()) + 1);
        const juce::EdgeTable edges (area, path, transform);
        edges.iterate (*this);
        starts.resize (static_cast<std::size_t> (area.getHeight()) + 1, runs.size());
    }

    [[nodiscard]] const Run* begin (int y) const { return runs.data() + starts[static_cast<std::size_t> (y - top)]; }
    [[nodiscard]] const Run* end (int y) const { return begin (y + 1); }

    // Callbacks of the edge table, which skips empty rows.
    void setEdgeTableYPos (int y) { starts.resize (static_cast<std::size_t> (y - top) + 1, runs.size()); }
    void handleEdgeTablePixel (int x, int level) { runs.push_back ({ x, x + 1, level }); }
    void handleEdgeTablePixelFull (int x) { runs.push_back ({ x, x + 1, 255 }); }
    void handleEdgeTableLine (int x, int width, int level) { runs.push_back ({ x, x + width, level }); }
    void handleEdgeTableLineFull (int x, int width) { runs.push_back ({ x, x + width, 255 }); }

private:
    int top;
    std::vector<Run> runs;
    std::vector<std::size_t> starts; // of each row in the runs, and the end of the last
};

struct Layer
{
    Coverage coverage;
    juce::PixelARGB colour;
    const Run *next = nullptr, *end = nullptr; // of the row being written
};

/** A row of the image; columns are in picture coordinates. */
struct Row
{
    juce::PixelRGB* pixels;
    int left, right;    // of the image
    int evenX, evenEnd; // the background has one colour between them
    juce::PixelRGB even;

    [[nodiscard]] juce::PixelRGB& at (int x) const { return pixels[x - left]; }
    [[nodiscard]] bool isEven (int x) const { return x >= evenX && x < evenEnd; }
    [[nodiscard]] juce::PixelRGB groundAt (int x) const { return isEven (x) ? even : at (x); }
    /** How far the background stays uniform. */
    [[nodiscard]] int evenFrom (int x) const { return isEven (x) ? evenEnd : x + 1; }
};

/** Fills one row, run by run over all layers. */
void writeRow (std::vector<Layer>& layers, const Row& row, int y)
{
    for (auto& layer : layers) {
        layer.next = layer.coverage.begin (y);
        layer.end = layer.coverage.end (y);
    }
    for (int x = row.left; x < row.right;) {
        auto pixel = row.groundAt (x);
        int end = std::min (row.right, row.evenFrom (x));
        for (auto& layer : layers) {
            while (layer.next != layer.end && layer.next->end <= x)
                ++layer.next;
            if (layer.next == layer.end)
                continue;
            const auto& run = *layer.next;
            end = std::min (end, run.x > x ? run.x : run.end);
            if (run.x <= x && run.level >= 255)
                pixel.blend (layer.colour);
            else if (run.x <= x)
                pixel.blend (layer.colour, static_cast<juce::uint32> (run.level));
        }
        std::fill (&row.at (x), &row.at (x) + (end - x), pixel);
        x = end;
    }
}

}

void overlayFills (juce::Image& image, juce::Rectangle<int> area, juce::Rectangle<int> evenGround, juce::Colour ground,
                   const std::vector<OverlaidFill>& fills, const juce::AffineTransform& transform)
{
    std::vector<Layer> layers;
    layers.reserve (fills.size());
    for (const auto& fill : fills)
        layers.push_back ({ Coverage (fill.path, area, transform), fill.colour.getPixelARGB() });

    juce::PixelRGB even;
    even.set (ground.getPixelARGB());
    const juce::Image::BitmapData pixels (image, juce::Image::BitmapData::readWrite);
    jassert (pixels.pixelStride == static_cast<int> (sizeof (juce::PixelRGB)));
    for (int y = area.getY(); y < area.getBottom(); ++y) {
        const bool isEven = y >= evenGround.getY() && y < evenGround.getBottom();
        writeRow (layers,
                  { reinterpret_cast<juce::PixelRGB*> (pixels.getLinePointer (y - area.getY())), area.getX(),
                    area.getRight(), evenGround.getX(), isEven ? evenGround.getRight() : evenGround.getX(), even },
                  y);
    }
}

}
