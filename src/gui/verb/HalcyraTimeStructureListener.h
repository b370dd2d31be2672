#pragma once

class HalcyraTimeStructureTabComponent;

namespace lumo
{

/** Receives edits made on the time structure page. Message thread. */
class HalcyraTimeStructureListener
{
public:
    virtual ~HalcyraTimeStructureListener() = default;

    /** The user or a notifying setter changed this parameter. */
    virtual void timeStructureChanged (HalcyraTimeStructureTabComponent* tab, const int& parameter) = 0;
};

}
