#pragma once
#include <cstddef>
#include <deque>
#include <vector>

namespace halcyra
{

/** Undo history of the user's edits: per gesture, the values it changed, before and after. Keeps the newest 100 steps.
    One thread. */
class EditHistory
{
public:
    static constexpr std::size_t mostSteps = 100;

    struct Value
    {
        int cell;
        float before, after;
    };
    using Step = std::vector<Value>;

    /** Identifies a gesture: a press lasts until close(); without one, consecutive edits of one control share a
        step. */
    struct Gesture
    {
        const void* control;
        bool isPress;

        friend bool operator== (const Gesture& a, const Gesture& b) noexcept
        {
            return a.isPress == b.isPress && (a.isPress || a.control == b.control);
        }
    };

    /** Adds a change to the gesture's step, or begins one; discards the steps to redo. */
    void record (Gesture gesture, int cell, float before, float after);
    /** Ends the step; false if there was none or nothing changed. */
    bool close();
    /** As close(), unless the step belongs to a press. */
    void closeRun();
    /** Merges the newest steps, because the presses of a double click are one gesture. Returns how many remain of them:
        0 if together they changed nothing. */
    int joinNewest (int count);

    /** The step to undo or to redo; null at the end. */
    [[nodiscard]] const Step* undo();
    [[nodiscard]] const Step* redo();

private:
    static void add (Step& step, const Value& value);
    /** False if the step was dropped. */
    bool keepIfChanged();

    std::deque<Step> steps;
    std::size_t done = 0; // steps before it can be undone, the others redone
    bool isOpen = false;
    Gesture open{};
};

}
