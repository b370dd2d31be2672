#pragma once
#include "max/Atoms.h"
#include "max/Rows.h"

#include <optional>
#include <vector>

namespace orvanemax
{

/** An attribute to recall after all others, because it modifies or rejects another one, or is modified by one. */
struct LateAttribute
{
    const char* name;
    std::optional<t_atom_long> lifted; // lets the other one through, where this one blocks it
    const char* refuses = nullptr;     // the one it rejects
};

/** Registers the class's late attributes in the order in which to set them. At registration; the rows must persist. */
void setLateAttributes (Rows<LateAttribute> rows) noexcept;

/** Sets many attributes of an object as one: lifts what blocks another one first, and sets it last to its recalled
    value or, if there is none, to its previous one. Main thread. */
class Recall
{
public:
    /** Takes the names that will be set. */
    Recall (void* object, const std::vector<t_symbol*>& names);
    ~Recall();

    Recall (const Recall&) = delete;
    Recall& operator= (const Recall&) = delete;

    t_max_err set (t_symbol* name, t_clong count, t_atom* atoms);

private:
    struct Late
    {
        t_symbol* name;
        std::vector<t_atom> value;
        bool isSet; // by the recall
    };

    void setLate();

    void* object;
    std::vector<Late> late;
};

}
