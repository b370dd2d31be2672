#include "max/MaxAttribute.h"

#include "max/AttributeValue.h"
#include "max/MaxErrorText.h"
#include "max/OrvanemaxSymbols.h"

#include <cstdint>

using orvanemax::AttributeValue;
using orvanemax::symbols;

namespace
{

enum class Flag
{
    absent,
    notLong,
    isOne,
    isOther
};

/** Whether a property is 1. A Max error counts only if atoms came with it: hosts differ on whether a missing property
    is an error. */
Flag readFlag (t_object* attribute, t_symbol* property, const char* failure)
{
    const AttributeValue value (attribute, property);
    if (value.atoms().empty())
        return Flag::absent;
    if (value.error() != MAX_ERR_NONE) {
        orvanemax::tellError (nullptr, std::string (failure) + orvanemax::errorText (value.error()) +
                                           " in object_attr_getvalueof");
        return Flag::absent;
    }
    if (atom_gettype (value.data()) != A_LONG)
        return Flag::notLong;
    return atom_getlong (value.data()) == 1 ? Flag::isOne : Flag::isOther;
}

std::string withoutTrailingBlank (std::string text)
{
    if (! text.empty())
        text.pop_back();
    return text;
}

}

MaxAttribute::MaxAttribute (void* object, t_symbol* name) noexcept
    : attribute (static_cast<t_object*> (object_attr_get (object, name)))
{}

t_symbol* MaxAttribute::name() const noexcept
{
    return static_cast<t_symbol*> (object_method (attribute, gensym ("getname")));
}

t_symbol* MaxAttribute::type() const noexcept
{
    return static_cast<t_symbol*> (object_method (attribute, gensym ("gettype")));
}

t_clong MaxAttribute::flags() const noexcept
{
    return static_cast<t_clong> (reinterpret_cast<std::intptr_t> (object_method (attribute, gensym ("getflags"))));
}

bool MaxAttribute::isOpaque() const noexcept { return (flags() & (ATTR_GET_OPAQUE_USER | ATTR_SET_OPAQUE_USER)) != 0; }

bool MaxAttribute::hasOrder() const noexcept { return ! AttributeValue (attribute, symbols().order).atoms().empty(); }

t_atom_long MaxAttribute::GetOrder() const
{
    const AttributeValue value (attribute, symbols().order);
    if (value.atoms().empty())
        return 0;
    if (value.error() != MAX_ERR_NONE)
        orvanemax::tellError (nullptr, std::string ("Error in MaxAttribute::GetOrder : ") +
                                           orvanemax::errorText (value.error()));
    else if (atom_gettype (value.data()) == A_LONG)
        return atom_getlong (value.data());
    else
        object_post (nullptr, "bug ? order attribute is supposed to be of type long for %s", name()->s_name);
    return 0;
}

qel::Vector<qel::String> MaxAttribute::GetEnumChoices (const qel::String& fallback) const
{
    const AttributeValue value (attribute, symbols().enumvals);
    qel::Vector<qel::String> choices;
    if (! value.atoms().empty() && value.error() != MAX_ERR_NONE)
        orvanemax::tellError (nullptr, std::string ("MaxAttribute::GetEnumChoices : ") +
                                           orvanemax::errorText (value.error()) + " in object_attr_getvalueof");
    else
        for (const auto& atom : value.atoms()) {
            if (atom_gettype (&atom) == A_SYM)
                choices.push_back (atom_getsym (&atom)->s_name);
            else
                orvanemax::tellError (nullptr, "enumvals attribute with an atom that is not a symbol ??");
        }
    if (choices.empty())
        choices.push_back (fallback);
    return choices;
}

qel::String MaxAttribute::GetValueOf (t_symbol* property, const qel::String& fallback) const
{
    const AttributeValue value (attribute, property);
    if (value.atoms().empty())
        return fallback;
    if (value.error() != MAX_ERR_NONE) {
        orvanemax::tellError (nullptr, std::string ("MaxAttribute::GetValueOf : ") +
                                           orvanemax::errorText (value.error()) + " in object_attr_getvalueof (" +
                                           name()->s_name + " " + property->s_name + ")");
        return fallback;
    }
    for (const auto& atom : value.atoms())
        if (! orvanemax::isKnownType (atom))
            orvanemax::tellError (nullptr, std::string ("MaxAttribute::GetValueOf : ") + name()->s_name + " (" +
                                               property->s_name + "): unhandled atom type ?");
    return withoutTrailingBlank (value.atoms().text());
}

qel::String MaxAttribute::label (const qel::String& fallback) const { return GetValueOf (symbols().label, fallback); }

qel::String MaxAttribute::description (const qel::String& fallback) const
{
    return GetValueOf (symbols().description, fallback);
}

bool MaxAttribute::IsInvisible() const
{
    const auto flag = readFlag (attribute, symbols().invisible, "MaxAttribute::IsInvisible : ");
    if (flag == Flag::notLong)
        orvanemax::tellError (nullptr, "error attribute invisible not typed long ??");
    return flag == Flag::isOne;
}

bool MaxAttribute::CanBeReset() const
{
    const auto flag = readFlag (attribute, symbols().dontreset, "MaxAttribute::CanBeReset : ");
    if (flag == Flag::notLong)
        orvanemax::tellError (nullptr, "bug ? MaxAttribute::CanBeReset()");
    return flag != Flag::isOne;
}
