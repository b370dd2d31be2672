#pragma once
#include "external/HalcyraControl.h"
#include "gui/verb/HalcyraComponentListener.h"

/** Turns every edit in the window into a message on the left outlet and into the attributes' mirrors, of whose single
    reverb parameters it is the only writer. Main thread. */
class MaxHalcyraListener : public lumo::HalcyraComponentListener
{
public:
    /** Registers itself with the object's component. */
    explicit MaxHalcyraListener (t_halcyra_control* owner);
    ~MaxHalcyraListener() override;

    MaxHalcyraListener (const MaxHalcyraListener&) = delete;
    MaxHalcyraListener& operator= (const MaxHalcyraListener&) = delete;

    /** The owner is being freed: from here on nothing is told, though the component may still be at work. */
    void leaveOwner();

    void HalcyraSourceChanged (int sourceIndex) override;
    void HalcyraSpeakersChanged() override;
    void HalcyraReverbChanged (const HalcyraReverbParameter& parameter) override;
    void HalcyraFilterChanged (const HalcyraFilter& filter) override;
    void HalcyraViewerOptionsChanged() override;
    void HalcyraCloseRequested() override;

private:
    /** What every change goes through: it is a call under way in the owner, and ends with the notification. A patch may
        free the owner while the change speaks. */
    template <typename Change>
    void tell (Change&& change);

    // Each stores what has changed in the mirrors and sends it, and touches the owner no more.
    void sendSource (int sourceIndex);
    void sendSpeakers();
    void sendParameter (HalcyraReverbParameter parameter);
    void sendFilter (HalcyraFilter filter);

    t_halcyra_control* x; // null once the owner is gone
    HalcyraComponent* component;
};
