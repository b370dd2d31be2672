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

/** One message of a class. Without a help text, the catalogue's text for the documented name applies; a message without
    either is omitted from the reference page. */
struct MessageRow
{
    const char* name;
    HostFunction function;
    int pattern; // A_GIMME, A_SYM, A_CANT, or A_NOTHING for no arguments
    const char* help = nullptr;
    ArgumentRow arguments[3] = {};
    const char* documentedName = nullptr; // if it differs
};

/** Registers messages and their documentation, in order. A failure is posted and the rest continues. The documentation
    goes into the dictionary `methods`, a property of the attribute `classdescription`. */
void addMessages (t_class* c, Rows<MessageRow> rows);

/** The four attributes that describe the class: digest, description, see-also list and version, stored as their labels.
    Call before addMessages. */
struct DocumentationFields
{
    t_clong description, digest, version, seeAlso; // offsets in the struct
};
void addDocumentationAttributes (t_class* c, const char* className, const char* version, const DocumentationFields&);

/** Name and purpose of an inlet or outlet, for the lists `inlets` and `outlets` of `classdescription`. */
struct PortRow
{
    const char* name;
    const char* help;
};
void addPortDocumentation (t_class* c, const char* list, std::initializer_list<PortRow> ports);

/** Registers an attribute with its accessors (null for the host's own), filter and properties, except its order. */
void addAttribute (t_class* c, const AttributeRow& row, const char* category, t_clong flags, HostFunction get,
                   HostFunction set);

/** Sets an attribute's order, which must follow all other properties. */
void addOrder (t_class* c, const char* name, int order);

/** The full default text: one element's default, repeated for each element. */
[[nodiscard]] std::string defaultTextOf (const AttributeRow& row);

/** The dictionary under a property of `classdescription`; null if there is none. Borrowed. */
[[nodiscard]] t_dictionary* documentationDictionary (void* object, const char* property);

}
