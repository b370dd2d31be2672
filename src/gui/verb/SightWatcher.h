#pragma once
#include <juce_gui_basics/juce_gui_basics.h>

#include <functional>

namespace halcyra
{

/** Calls back when a component comes into or goes out of sight, for any reason. Message thread. */
class SightWatcher : private juce::ComponentMovementWatcher
{
public:
    using Callback = std::function<void (bool isShowing)>;

    SightWatcher (juce::Component& watched, Callback callback)
        : ComponentMovementWatcher (&watched), changed (std::move (callback))
    {}

private:
    void componentMovedOrResized (bool, bool) override {}
    void componentPeerChanged() override {}
    void componentVisibilityChanged() override { changed (getComponent()->isShowing()); }

    Callback changed;
};

}
