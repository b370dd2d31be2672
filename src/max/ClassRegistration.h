#pragma once
#include "max/Atoms.h"
#include "max/AttributeRow.h"
#include "max/HostFunction.h"
#include "max/Rows.h"

#include <initializer_list>

namespace orvanemax
{

/** An argument of a message, for the reference page. */
struct ArgumentRow
{
    const char* name = nullptr;
    const char* type = nullptr;
};

/** One message of a class. The help text is looked up in the catalogue under the documented name when none is given;
    a message without either is left out of the reference page. */
struct MessageRow
{
    const char* name;
    HostFunction function;
    int pattern; // A_GIMME, A_SYM, A_CANT, or A_NOTHING for none
    const char* help = nullptr;
    ArgumentRow arguments[3] = {};
    const char* documentedName = nullptr; // where it differs
};

/** Registers messages in order, with their documentation. A message that fails is posted, and the rest goes on.
    The documentation lies in the dictionary `methods`, a property of the attribute `classdescription`. */
void addMessages (t_class* c, Rows<MessageRow> rows);

/** The four attributes that name the class: digest, description, see-also list and version, kept as their labels. Comes
    before addMessages. */
struct DocumentationFields
{
    t_clong description, digest, version, seeAlso; // offsets in the record
};
void addDocumentationAttributes (t_class* c, const char* className, const char* version, const DocumentationFields&);

/** What an inlet or outlet is called and for, in the lists `inlets` and `outlets` of `classdescription`. */
struct PortRow
{
    const char* name;
    const char* help;
};
void addPortDocumentation (t_class* c, const char* list, std::initializer_list<PortRow> ports);

/** Registers an attribute with its accessors (null for the host's own), filter and properties, but not its order. */
void addAttribute (t_class* c, const AttributeRow& row, const char* category, t_clong flags, HostFunction get,
                   HostFunction set);

/** Gives an attribute its place, which comes behind all other properties. */
void addOrder (t_class* c, const char* name, int order);

/** The whole text of a default: that of one element as often as the attribute holds it. */
[[nodiscard]] std::string defaultTextOf (const AttributeRow& row);

/** The dictionary under a property of `classdescription`; null if there is none. Borrowed. */
[[nodiscard]] t_dictionary* documentationDictionary (void* object, const char* property);

}
