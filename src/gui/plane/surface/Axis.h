#pragma once
#include "osc/OrvaneDspOscInterface.h"

#include <juce_graphics/juce_graphics.h>

namespace lumo::Plane
{

/** The cross through the origin and its labels. Writable by OSC address; a write neither repaints nor notifies. */
class Axis : public qel::OscInterface
{
public:
    bool processOscMessage (const qel::OSCMessage& message) override;
    qel::OSCBundle getOscState() override;

    juce::Colour colour = juce::Colours::white;
    bool visible = true;
    bool originVisible = true;
    bool labelVisible = true;
};

/** The scale at the lower right. Writable by OSC address; a write neither repaints nor notifies. */
class Legend : public qel::OscInterface
{
public:
    bool processOscMessage (const qel::OSCMessage& message) override;
    qel::OSCBundle getOscState() override;

    bool visible = true;
};

}
