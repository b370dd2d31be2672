#pragma once
#include "host/bench/Bench.h"

/** Queries on a box, by the host's own operations. Main thread. */
namespace bench
{

/** Value of an attribute, or of an attribute's property; nothing if there is no such attribute. */
std::optional<Atoms> attributeOf (const Box& box, const std::string& attribute);
std::optional<Atoms> propertyOf (const Box& box, const std::string& attribute, const std::string& property);

/** Whether the object sets the attribute's size, such as one value per source. */
bool isList (const Box& box, const std::string& attribute);

/** Sets an attribute as C code would: filter, setter, notification. */
bool setAttribute (const Box& box, const std::string& attribute, const Atoms& atoms);

/** The object's user-visible attributes, in order of registration. */
std::vector<std::string> visibleAttributes (const Box& box);

/** The same for a loaded class, without a box; and the choices of one of them, if it is an enumeration. */
std::vector<std::string> visibleAttributes (const std::string& className);
std::vector<std::string> choicesOf (const std::string& className, const std::string& attribute);

struct MethodRow
{
    std::string message;
    std::vector<std::string> kinds; // "A_GIMME", "A_SYM", ...; empty for a message without arguments
};

/** The messages of the class in order of registration; for duplicate names, the one called. */
std::vector<MethodRow> methodsOf (const Box& box);

/** The assist text of an inlet or outlet. */
std::string assistanceOf (const Box& box, e_max_assist kind, int index);

/** The pattr protocol; empty if the class has no such method or it failed. */
std::optional<Atoms> stateOf (const Box& box);
bool setState (const Box& box, const Atoms& atoms);

/** What the box writes to a preset, without the closing semicolon. */
Atoms presetOf (const Box& box);

/** The number of outlets. */
int numberOfOutlets (const Box& box);

/** Adds an entry to the dictionary registered under a name, creating it. */
void putEntry (const std::string& dictionary, const std::string& key, const Atoms& atoms);

/** The entries of a registered dictionary as events without a box; empty if there is none. */
std::optional<std::vector<Event>> entriesOf (const std::string& dictionary);

}
