#pragma once
#include "reverb/HalcyraParameters.h"

namespace lumo
{

/** Receives edits made in the window. Message thread. */
class HalcyraComponentListener
{
public:
    virtual ~HalcyraComponentListener() = default;

    /** A source moved on the plane; indices start at 0. */
    virtual void HalcyraSourceChanged (int sourceIndex) = 0;
    /** Speakers moved or changed on the plane. */
    virtual void HalcyraSpeakersChanged() = 0;
    /** A reverb parameter changed. */
    virtual void HalcyraReverbChanged (const HalcyraReverbParameter& parameter) = 0;
    /** A filter changed. */
    virtual void HalcyraFilterChanged (const HalcyraFilter& filter) = 0;
    /** A display setting of the plane changed. */
    virtual void HalcyraViewerOptionsChanged() = 0;
    /** The key that closes the window was pressed. */
    virtual void HalcyraCloseRequested() = 0;
};

}
