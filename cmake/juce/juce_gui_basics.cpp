#include <juce_gui_basics/juce_gui_basics.cpp>

#include "JucePrivateParts.h"

namespace juce
{

/** The timer is a private base class, which only a C-style cast may access. */
Timer& timerOf (TooltipWindow& window) { return (Timer&)window; }

#if JUCE_LINUX

void setForegroundProcess (bool isForeground) { LinuxComponentPeer::isActiveApplication = isForeground; }

/** The timer is a private member of JUCE's peer; an explicit instantiation may name it. */
template <auto timer>
struct VBlankTimer
{
    friend Timer& vBlankTimerOf (LinuxComponentPeer& peer) { return peer.*timer; }
};
Timer& vBlankTimerOf (LinuxComponentPeer& peer);
template struct VBlankTimer<&LinuxComponentPeer::vBlankManager>;

/** JUCE's peer has a timer at the screen's rate for its whole life, which wakes a timer thread and the main thread even
    if nothing changes. This one paints only on demand: behind the messages already queued, or at the screen's next
    frame if one was painted just before. Message thread. */
class RestingPeer : public LinuxComponentPeer, private AsyncUpdater, private ComponentPeer::VBlankListener
{
public:
    RestingPeer (Component& component, int styleFlags) : LinuxComponentPeer (component, styleFlags, {})
    {
        addVBlankListener (this);
    }
    ~RestingPeer() override { removeVBlankListener (this); }

    void repaint (const Rectangle<int>& area) override
    {
        LinuxComponentPeer::repaint (area);
        if (std::exchange (frameIsAsked, true))
            return;
        if (const auto wait = due - Time::getMillisecondCounterHiRes(); wait > 0)
            tick (static_cast<int> (std::ceil (wait)));
        else
            triggerAsyncUpdate();
    }

private:
    /** In ms; longer than the 3 s after which JUCE frees the image that it paints into. */
    static constexpr int rest = 3500;

    [[nodiscard]] Timer& timer() { return vBlankTimerOf (*this); }

    void tick (int milliseconds)
    {
        ticks = milliseconds;
        timer().startTimer (milliseconds);
    }

    void handleAsyncUpdate() override { timer().timerCallback(); }

    /** Starts a frame: JUCE then paints the invalid area, unless the server is still reading the last frame. */
    void onVBlank() override
    {
        if (const int set = timer().getTimerInterval(); set != ticks)
            interval = set; // by JUCE, for the window's screen
        const auto now = Time::getMillisecondCounterHiRes();
        auto& windows = *XWindowSystem::getInstance();
        windows.processPendingPaintsForWindow (getWindowHandle());
        if (windows.getNumPaintsPendingForWindow (getWindowHandle()) > 0)
            return tick (interval);
        if (std::exchange (frameIsAsked, false))
            due = jmax (due, now - interval) + interval; // keeps the rate when events arrive unevenly
        else if (now - due > rest)
            return stop();
        if (timer().getTimerInterval() != rest)
            tick (rest);
    }

    void stop()
    {
        ticks = 0;
        timer().stopTimer();
    }

    double due = 0;    // time of the next frame, in ms
    int interval = 10; // the screen's frame interval, in ms
    int ticks = 0;     // the timer interval last set here, in ms
    bool frameIsAsked = false;
};

ComponentPeer* createRestingPeer (Component& component, int styleFlags)
{
    return new RestingPeer (component, styleFlags);
}

#endif

}
