#pragma once
#include <juce_graphics/juce_graphics.h>

#include <utility>

namespace lumo::Plane
{

/** Areas changed since a picture's last frame: a few parts, or everything. Before the first frame it is everything. */
class ChangedParts
{
public:
    /** More parts are painted as one. With 64 sources a frame with this many moves costs as much as a full repaint. */
    static constexpr int most = 8;

    [[nodiscard]] bool AreTheWhole() const noexcept { return count > most; }
    /** One part too many turns them into everything. */
    void Add (juce::Rectangle<int> part)
    {
        if (++count <= most)
            parts.add (part);
    }
    /** Call at the start of a frame: returns the areas to paint; empty means everything. */
    [[nodiscard]] juce::RectangleList<int> Take()
    {
        const bool wereTheWhole = std::exchange (count, 0) > most;
        auto taken = std::exchange (parts, {});
        return wereTheWhole ? juce::RectangleList<int>() : std::move (taken);
    }
    /** Call if no frame follows: the next one paints everything. */
    void Reset()
    {
        count = most + 1;
        parts.clear();
    }

private:
    juce::RectangleList<int> parts;
    int count = most + 1;
};

}
