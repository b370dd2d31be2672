#pragma once
#include "external/HalcyraControl.h"
#include "gui/verb/HalcyraComponentListener.h"

/** Sends every edit in the window as a message from the left outlet and updates the attributes' mirrors; it is the only
    writer of the single reverb parameters. Main thread. */
class MaxHalcyraListener : public lumo::HalcyraComponentListener
{
public:
    /** Registers itself with the object's component. */
    explicit MaxHalcyraListener (t_halcyra_control* owner);
    ~MaxHalcyraListener() override;

    MaxHalcyraListener (const MaxHalcyraListener&) = delete;
    MaxHalcyraListener& operator= (const MaxHalcyraListener&) = delete;

    /** The owner is being freed: no more notifications, though the component may still be in use. */
    void leaveOwner();

    void HalcyraSourceChanged (int sourceIndex) override;
    void HalcyraSpeakersChanged() override;
    void HalcyraReverbChanged (const HalcyraReverbParameter& parameter) override;
    void HalcyraFilterChanged (const HalcyraFilter& filter) override;
    void HalcyraViewerOptionsChanged() override;
    void HalcyraCloseRequested() override;

private:
    /** Wraps every change: registers it as a call in progress on the owner, and notifies at the end. Sending may make
        the patch free the owner. */
    template <typename Change>
    void tell (Change&& change);

    // Each stores the change in the mirrors, then sends it; the owner may be gone afterwards.
    void sendSource (int sourceIndex);
    void sendSpeakers();
    void sendParameter (HalcyraReverbParameter parameter);
    void sendFilter (HalcyraFilter filter);

    t_halcyra_control* x; // null once the owner is gone
    HalcyraComponent* component;
};
