#pragma once
#include <cstddef>
#include <deque>
#include <vector>

namespace halcyra
{

/** What the hand has done, gesture by gesture, for undo and redo: the values that each gesture changed, before and
    after. The newest 100 steps are kept. One thread. */
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

    /** Whose gesture it is: a press lasts until close(); without one, edits of one control follow each other in one
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

    /** Adds a change to the step of that gesture, or begins one; what had been undone is gone then. */
    void record (Gesture gesture, int cell, float before, float after);
    /** Ends the step; false if there was none, or nothing has changed. */
    bool close();
    /** The same, but for the step of a press. */
    void closeRun();
    /** Makes one of the newest steps, as the presses of a double click are one gesture; how many are left of them: none
        if together they changed nothing. */
    int joinNewest (int count);

    /** The step to take back or to do again; null at the end. */
    [[nodiscard]] const Step* undo();
    [[nodiscard]] const Step* redo();

private:
    static void add (Step& step, const Value& value);
    /** False if it was dropped. */
    bool keepIfChanged();

    std::deque<Step> steps;
    std::size_t done = 0; // steps before it can be undone, those from it on redone
    bool isOpen = false;
    Gesture open{};
};

}
