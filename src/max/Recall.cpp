#include "max/Recall.h"

#include "max/AttributeValue.h"
#include "max/Guarded.h"
#include "max/ObjectCall.h"

#include <algorithm>

namespace orvanemax
{
namespace
{

Rows<LateAttribute> lateAttributes;

std::vector<t_atom> present (void* object, t_symbol* name)
{
    const AttributeValue value (object, name);
    return { value.atoms().begin(), value.atoms().end() };
}

bool equal (const std::vector<t_atom>& a, const std::vector<t_atom>& b)
{
    return std::equal (a.begin(), a.end(), b.begin(), b.end(), [] (const t_atom& x, const t_atom& y) {
        return x.a_type == y.a_type && x.a_w.w_long == y.a_w.w_long;
    });
}

}

void setLateAttributes (Rows<LateAttribute> rows) noexcept { lateAttributes = rows; }

Recall::Recall (void* owner, const std::vector<t_symbol*>& names) : object (owner)
{
    const auto comes = [&] (const char* name) {
        return name != nullptr && std::find (names.begin(), names.end(), gensym (name)) != names.end();
    };
    for (const auto& row : lateAttributes)
        late.push_back ({ gensym (row.name), present (object, gensym (row.name)), false });
    for (const auto& row : lateAttributes)
        if (! objectIsGone() && row.lifted && comes (row.refuses)) {
            t_atom open{};
            atom_setlong (&open, *row.lifted);
            object_attr_setvalueof (object, gensym (row.name), 1, &open);
        }
}

t_max_err Recall::set (t_symbol* name, t_clong count, t_atom* atoms)
{
    const auto row = std::find_if (late.begin(), late.end(), [=] (const Late& l) { return l.name == name; });
    if (row == late.end())
        return object_attr_setvalueof (object, name, count, atoms);
    row->value.assign (atoms, atoms + count);
    row->isSet = true;
    return MAX_ERR_NONE;
}

Recall::~Recall()
{
    if (! objectIsGone())
        guarded (object, [this] { setLate(); });
}

void Recall::setLate()
{
    for (auto& row : late)
        if (! objectIsGone() && (row.isSet || ! equal (row.value, present (object, row.name))))
            object_attr_setvalueof (object, row.name, static_cast<t_clong> (row.value.size()), row.value.data());
}

}
