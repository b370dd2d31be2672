#include <juce_gui_basics/juce_gui_basics.cpp>

#include "JucePrivateParts.h"

namespace juce
{

/** The timer is a private base, which this form of a cast alone may name. */
Timer& timerOf (TooltipWindow& window) { return (Timer&)window; }

#if JUCE_LINUX

void setForegroundProcess (bool isForeground) { LinuxComponentPeer::isActiveApplication = isForeground; }

/** The timer is private to JUCE's peer; an explicit instantiation may name it. */
template <auto timer>
struct VBlankTimer
{
    friend Timer& vBlankTimerOf (LinuxComponentPeer& peer) { return peer.*timer; }
};
Timer& vBlankTimerOf (LinuxComponentPeer& peer);
template struct VBlankTimer<&LinuxComponentPeer::vBlankManager>;

/** JUCE's peer ticks at the screen's rate for as long as it lives, which wakes a thread of timers and the main thread
    whether anything changed or not. This one paints when it is asked to: behind what already waits in the message
    queue, or when the screen is next due if a frame was painted just before. Message thread. */
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
    /** In ms; longer than the 3 s after which JUCE drops the image that it paints into. */
    static constexpr int rest = 3500;

    [[nodiscard]] Timer& timer() { return vBlankTimerOf (*this); }

    void tick (int milliseconds)
    {
        ticks = milliseconds;
        timer().startTimer (milliseconds);
    }

    void handleAsyncUpdate() override { timer().timerCallback(); }

    /** A frame begins: JUCE goes on to paint what was asked for, unless the server still reads the last one. */
    void onVBlank() override
    {
        if (const int set = timer().getTimerInterval(); set != ticks)
            interval = set; // by JUCE, for the screen that the window is on
        const auto now = Time::getMillisecondCounterHiRes();
        auto& windows = *XWindowSystem::getInstance();
        windows.processPendingPaintsForWindow (getWindowHandle());
        if (windows.getNumPaintsPendingForWindow (getWindowHandle()) > 0)
            return tick (interval);
        if (std::exchange (frameIsAsked, false))
            due = jmax (due, now - interval) + interval; // keeps the rate although hands are uneven
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

    double due = 0;    // when the next frame may be painted, in ms
    int interval = 10; // of the screen's frames, in ms
    int ticks = 0;     // what the timer was last set to here, in ms
    bool frameIsAsked = false;
};

ComponentPeer* createRestingPeer (Component& component, int styleFlags)
{
    return new RestingPeer (component, styleFlags);
}

#endif

}
