#pragma once
#include "host/bench/Bench.h"

/** Questions to a box, asked by the host's own operations. Main thread. */
namespace bench
{

/** Value of an attribute, or of an attribute's property; nothing if there is no such attribute. */
std::optional<Atoms> attributeOf (const Box& box, const std::string& attribute);
std::optional<Atoms> propertyOf (const Box& box, const std::string& attribute, const std::string& property);

/** Whether the number of an attribute's values is the object's to say, as with one value for each of its sources. */
bool isList (const Box& box, const std::string& attribute);

/** Sets an attribute as C code would: filter, setter, notification. */
bool setAttribute (const Box& box, const std::string& attribute, const Atoms& atoms);

/** The attributes of the object that the user may see, in order of registration. */
std::vector<std::string> visibleAttributes (const Box& box);

/** The same of a class that is loaded, without a box; and the words that one of them is chosen from, if it is. */
std::vector<std::string> visibleAttributes (const std::string& className);
std::vector<std::string> choicesOf (const std::string& className, const std::string& attribute);

struct MethodRow
{
    std::string message;
    std::vector<std::string> kinds; // "A_GIMME", "A_SYM", ...; none for a message without arguments
};

/** The messages of the class in order of registration; of two with one name, the one that is reached. */
std::vector<MethodRow> methodsOf (const Box& box);

/** The assistance text of an inlet or outlet. */
std::string assistanceOf (const Box& box, e_max_assist kind, int index);

/** The pattr protocol; nothing if the class has no such method or it failed. */
std::optional<Atoms> stateOf (const Box& box);
bool setState (const Box& box, const Atoms& atoms);

/** What the box writes when a preset saves, without the closing semicolon. */
Atoms presetOf (const Box& box);

/** The outlets of a box, leftmost first. */
int numberOfOutlets (const Box& box);

/** Adds an entry to the dictionary registered under a name, creating it. */
void putEntry (const std::string& dictionary, const std::string& key, const Atoms& atoms);

/** The entries of a registered dictionary as events of no box; nothing if there is none. */
std::optional<std::vector<Event>> entriesOf (const std::string& dictionary);

}
