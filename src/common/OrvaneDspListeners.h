#pragma once
#include "math/OrvaneDspVector.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace qel
{

/** A list of listeners, not owned: sorted by pointer, without duplicates; null is ignored. Calls go from last to first.
    A listener may remove itself or others during a call; one that removes others before itself may be called again,
    because the loop runs by index. Not thread-safe. */
template <typename Listener>
class Listeners
{
public:
    void add (Listener* listener)
    {
        if (listener == nullptr || contains (listener))
            return;
        list.push_back (listener);
        std::sort (list.begin(), list.end(), std::less<Listener*>());
    }
    void remove (Listener* listener) noexcept
    {
        const auto place = std::find (list.begin(), list.end(), listener);
        if (place != list.end())
            list.erase (static_cast<std::size_t> (place - list.begin()));
    }
    [[nodiscard]] bool contains (const Listener* listener) const noexcept
    {
        return std::find (list.begin(), list.end(), listener) != list.end();
    }
    [[nodiscard]] std::size_t size() const noexcept { return list.size(); }

    /** call ([&] (Listener& listener) { listener.somethingChanged(); }) */
    template <typename Function>
    void call (Function&& function)
    {
        for (std::size_t next = list.size(); next > 0; next = std::min (next, list.size())) // the list may have changed
            function (*list[--next]);
    }

private:
    Vector<Listener*> list;
};

/** Listeners, not owned, called in the order in which they were added; null and duplicates are ignored. During a call a
    listener may add and remove any, itself included; none is called twice. One thread. */
template <typename Listener>
class ListenersInOrder
{
public:
    void add (Listener* listener)
    {
        if (listener != nullptr && std::find (list.begin(), list.end(), listener) == list.end())
            list.push_back (listener);
    }
    void remove (Listener* listener) noexcept
    {
        list.erase (std::remove (list.begin(), list.end(), listener), list.end());
    }

    template <typename Function>
    void call (Function&& function)
    {
        for (std::size_t next = 0; next < list.size();) {
            auto* const listener = list[next];
            function (*listener);
            const auto place = std::find (list.begin(), list.end(), listener);
            if (place != list.end())
                next = static_cast<std::size_t> (place - list.begin()) + 1;
        }
    }

private:
    std::vector<Listener*> list;
};

}
