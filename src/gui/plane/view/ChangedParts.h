#pragma once
#include <juce_graphics/juce_graphics.h>

#include <utility>

namespace lumo::Plane
{

/** What has changed in a picture since its last frame: a few parts, or the whole. Before the first frame it is the
    whole, whatever changes. */
class ChangedParts
{
public:
    /** More than these are painted as one. With 64 sources a frame of as many moves costs what the whole does. */
    static constexpr int most = 8;

    [[nodiscard]] bool AreTheWhole() const noexcept { return count > most; }
    /** The first part too many makes them the whole. */
    void Add (juce::Rectangle<int> part)
    {
        if (++count <= most)
            parts.add (part);
    }
    /** As a frame begins: gives what it has to show, nothing for the whole. */
    [[nodiscard]] juce::RectangleList<int> Take()
    {
        const bool wereTheWhole = std::exchange (count, 0) > most;
        auto taken = std::exchange (parts, {});
        return wereTheWhole ? juce::RectangleList<int>() : std::move (taken);
    }
    /** When no frame is coming: the next one shows all. */
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
