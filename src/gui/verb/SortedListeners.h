#pragma once
#include <algorithm>
#include <functional>
#include <vector>

namespace halcyra
{

/** Listeners sorted by pointer and walked from the last to the first; a listener may remove itself or others during a
    walk. None is owned. */
template <typename Listener>
class SortedListeners
{
public:
    /** Null is ignored, and a second add of one listener leaves one entry. */
    void add (Listener* listener)
    {
        const auto place = lowerBound (listener);
        if (listener != nullptr && (place == listeners.end() || *place != listener))
            listeners.insert (place, listener);
    }

    void remove (Listener* listener)
    {
        const auto place = lowerBound (listener);
        if (place != listeners.end() && *place == listener)
            listeners.erase (place);
    }

    /** Calls each, the last first. */
    template <typename Call>
    void call (Call&& tell)
    {
        for (auto index = listeners.size(); index > 0; index = std::min (index, listeners.size())) {
            --index;
            tell (*listeners[index]);
        }
    }

private:
    [[nodiscard]] auto lowerBound (Listener* listener)
    {
        return std::lower_bound (listeners.begin(), listeners.end(), listener, std::less<Listener*>());
    }

    std::vector<Listener*> listeners;
};

}
