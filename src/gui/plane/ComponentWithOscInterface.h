#pragma once
#include "gui/plane/LumoComponent.h"
#include "osc/OrvaneDspOscInterface.h"

namespace lumo
{

/** A component whose state can be read and written by OSC address. */
class ComponentWithOscInterface : public Component, public qel::OscInterface
{
public:
    using Component::Component;
};

}
