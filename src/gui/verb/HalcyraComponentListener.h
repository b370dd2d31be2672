#pragma once
#include "reverb/HalcyraParameters.h"

namespace lumo
{

/** How an edit in the window leaves the editors. Message thread. */
class HalcyraComponentListener
{
public:
    virtual ~HalcyraComponentListener() = default;

    /** A source moved on the plane; the index counts from 0. */
    virtual void HalcyraSourceChanged (int sourceIndex) = 0;
    /** Speakers moved or changed on the plane. */
    virtual void HalcyraSpeakersChanged() = 0;
    /** The reverb parameter of that number changed. */
    virtual void HalcyraReverbChanged (const HalcyraReverbParameter& parameter) = 0;
    /** That filter set changed. */
    virtual void HalcyraFilterChanged (const HalcyraFilter& filter) = 0;
    /** A display setting of the plane changed. */
    virtual void HalcyraViewerOptionsChanged() = 0;
    /** The key that closes the window was pressed. */
    virtual void HalcyraCloseRequested() = 0;
};

}
