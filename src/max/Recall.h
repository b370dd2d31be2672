#pragma once
#include "max/Atoms.h"
#include "max/Rows.h"

#include <optional>
#include <vector>

namespace orvanemax
{

/** An attribute that is recalled behind all others: it bends or refuses another one, or is bent by one. */
struct LateAttribute
{
    const char* name;
    std::optional<t_atom_long> lifted; // what lets the other one through, where it is in the way
    const char* refuses = nullptr;     // that other one
};

/** Names the class's late attributes, in the order in which they are set. At registration; the rows must last. */
void setLateAttributes (Rows<LateAttribute> rows) noexcept;

/** Sets many attributes of an object as one: what stands in the way of one is lifted first, and set last to its own
    recalled value or, if none comes, to the one that stood before. Main thread. */
class Recall
{
public:
    /** The names are those that will be set. */
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
