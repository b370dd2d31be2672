#pragma once
#include "reverb/ReverbModel.h"

#include <juce_events/juce_events.h>

namespace halcyra
{

/** A model whose turns end with a JUCE message, unless its owner sets another waker. Message thread. */
class SelfWakingModel : public halcyra::ReverbModel, private juce::AsyncUpdater
{
public:
    explicit SelfWakingModel (int internals) : ReverbModel (internals)
    {
        wakeTurnEnd = [this] { triggerAsyncUpdate(); };
    }

private:
    void handleAsyncUpdate() override { endTurn(); }
};

}
