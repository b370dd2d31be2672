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

/** JUCE's peer ticks at the screen's rate for as long as it lives. This one stops when nothing has been painted for a
    while, and goes on with the next request to repaint. */
class RestingPeer : public LinuxComponentPeer, private ComponentPeer::VBlankListener
{
public:
    RestingPeer (Component& component, int styleFlags) : LinuxComponentPeer (component, styleFlags, {})
    {
        addVBlankListener (this);
    }
    ~RestingPeer() override { removeVBlankListener (this); }

    void repaint (const Rectangle<int>& area) override
    {
        lastRepaint = Time::getMillisecondCounter();
        if (auto& timer = vBlankTimerOf (*this); ! timer.isTimerRunning() && interval > 0)
            timer.startTimer (interval);
        LinuxComponentPeer::repaint (area);
    }

private:
    /** In ms; longer than the 3 s after which JUCE drops the image that it paints into. */
    static constexpr uint32 rest = 3500;

    void onVBlank() override
    {
        auto& timer = vBlankTimerOf (*this);
        interval = timer.getTimerInterval();
        if (Time::getMillisecondCounter() - lastRepaint > rest)
            timer.stopTimer();
    }

    uint32 lastRepaint = Time::getMillisecondCounter();
    int interval = 0;
};

ComponentPeer* createRestingPeer (Component& component, int styleFlags)
{
    return new RestingPeer (component, styleFlags);
}

#endif

}
