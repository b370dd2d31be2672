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

    void HalcyraSourceChanged (int sourceIndex) override;
    void HalcyraSpeakersChanged() override;
    void HalcyraReverbChanged (const HalcyraReverbParameter& parameter) override;
    void HalcyraFilterChanged (const HalcyraFilter& filter) override;
    void HalcyraViewerOptionsChanged() override;
    void HalcyraCloseRequested() override;

private:
    void notifyModified();

    t_halcyra_control* x;
};
