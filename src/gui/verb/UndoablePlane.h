#pragma once
#include "gui/plane/PlaneComponent.h"
#include "gui/plane/ScenePoses.h"

#include <functional>
#include <utility>

namespace halcyra
{

/** A window's scene editor; reports what each of the user's events moved. Message thread. */
class UndoablePlane : public lumo::PlaneComponent
{
public:
    /** Poses before and after one event; of equal length, and different. */
    using Moved = std::function<void (const lumo::poses::Poses& before, const lumo::poses::Poses& after)>;

    /** Calls boundGesture before and after each key, because each key press is its own gesture. */
    UndoablePlane (std::size_t numSources, std::size_t numSpeakers, int size, Moved tellMoved,
                   std::function<void()> boundGesture)
        : PlaneComponent (numSources, numSpeakers, size),
          moved (std::move (tellMoved)),
          bound (std::move (boundGesture))
    {}

    void mouseDrag (const juce::MouseEvent& event) override
    {
        watch ([&] { PlaneComponent::mouseDrag (event); });
    }
    void mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel) override
    {
        watch ([&] { PlaneComponent::mouseWheelMove (event, wheel); });
    }
    bool keyPressed (const juce::KeyPress& key) override
    {
        bool taken = false;
        bound();
        watch ([&] { taken = PlaneComponent::keyPressed (key); });
        bound();
        return taken;
    }

private:
    template <typename Act>
    void watch (Act&& act)
    {
        lumo::poses::read (*this, before);
        act();
        lumo::poses::read (*this, after);
        if (before != after)
            moved (before, after);
    }

    Moved moved;
    std::function<void()> bound;
    lumo::poses::Poses before, after;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (UndoablePlane)
};

}
