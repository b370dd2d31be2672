#include "gui/verb/EditHistory.h"

#include <algorithm>
#include <utility>

namespace halcyra
{

void EditHistory::record (Gesture gesture, int cell, float before, float after)
{
    if (! isOpen || ! (gesture == open)) {
        close();
        steps.resize (done);
        steps.emplace_back();
        if (steps.size() > mostSteps)
            steps.pop_front();
        done = steps.size();
        isOpen = true;
        open = gesture;
    }
    add (steps.back(), { cell, before, after });
}

void EditHistory::add (Step& step, const Value& value)
{
    const auto known = std::find_if (step.begin(), step.end(), [&] (const Value& v) { return v.cell == value.cell; });
    if (known == step.end())
        step.push_back (value);
    else
        known->after = value.after;
}

bool EditHistory::close() { return std::exchange (isOpen, false) && keepIfChanged(); }

void EditHistory::closeRun()
{
    if (isOpen && ! open.isPress)
        close();
}

/** A gesture that ends where it began is not a step. */
bool EditHistory::keepIfChanged()
{
    auto& step = steps.back();
    step.erase (std::remove_if (step.begin(), step.end(), [] (const Value& v) { return v.before == v.after; }),
                step.end());
    const bool isKept = ! step.empty();
    if (! isKept)
        steps.pop_back();
    done = steps.size();
    return isKept;
}

int EditHistory::joinNewest (int count)
{
    if (isOpen || count < 2 || done != steps.size() || done < static_cast<std::size_t> (count))
        return count;
    const auto first = steps.end() - count;
    for (auto step = first + 1; step != steps.end(); ++step)
        for (const auto& value : *step)
            add (*first, value);
    steps.erase (first + 1, steps.end());
    return keepIfChanged() ? 1 : 0;
}

const EditHistory::Step* EditHistory::undo()
{
    close();
    return done == 0 ? nullptr : &steps[--done];
}

const EditHistory::Step* EditHistory::redo()
{
    close();
    return done == steps.size() ? nullptr : &steps[done++];
}

}
