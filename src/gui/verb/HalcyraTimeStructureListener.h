#pragma once

class HalcyraTimeStructureTabComponent;

namespace lumo
{

/** Hears of edits on the time structure page. Message thread. */
class HalcyraTimeStructureListener
{
public:
    virtual ~HalcyraTimeStructureListener() = default;

    /** The user, or a notifying setter, changed the parameter of that number. */
    virtual void timeStructureChanged (HalcyraTimeStructureTabComponent* tab, const int& parameter) = 0;
};

}
