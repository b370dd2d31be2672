#include "registry/MaxMspExternal.h"

#include "common/OrvaneDspException.h"
#include "registry/Halcyra.h"
#include "registry/NamedTable.h"

#include <iostream>

namespace Ambrel::MaxMspExternal
{
namespace
{

struct NameRow
{
    const char* name;
    Type type;
};

/** Variants of an object share its type. */
constexpr NameRow nameRows[] = {
    { "halcyra~", Type::HalcyraTilda },
    { "halcyra~.embedded", Type::HalcyraTilda },
    { "halcyra~.control", Type::HalcyraTildaControl },
};

struct MethodRow
{
    const char* name;
    const char* help;
};

/** Messages common to several objects of the family. A row without a text returns "0". */
constexpr MethodRow methodRows[] = {
    { "loudspeakers", "sets the positions of all speakers, in any of the coordinate formats." },
    { "loudspeaker", "moves or dresses one speaker, counted from 1." },
    { "speakers", "sets the positions of all speakers, in any of the coordinate formats." },
    { "speaker", "moves or dresses one speaker, counted from 1." },
    { "listener", "moves or turns the listener." },
    { "open", "opens the Graphical User Interface window. (or brings the window to front if it was already opened)" },
    { "dblclick",
      "opens the Graphical User Interface window. (or brings the window to front if it was already opened)" },
    { "wclose", "closes the Graphical User Interface window." },
    { "info", "posts information about the object." },
    { "/info", "posts information about the object." },
    { "clear", "" },
    { "source", "moves or dresses one source, counted from 1." },
    { "areas", "sets the outline, the name, the colour or the visibility of one area, counted from 1." },
    { "area", "sets the outline, the name, the colour or the visibility of one area, counted from 1." },
    { "anchor", "moves or names one anchor, counted from 1." },
    { "rotate", "rotates the scene (0) or one source by yaw, pitch and roll in degrees." },
    { "adjustzoom", "fits the zoom so that every source is in view." },
    { "store", "stores the positions of the sources as a snapshot under a name." },
    { "recall", "recalls a snapshot by its name." },
    { "clearsnapshot", "removes the named snapshot, or all of them." },
    { "xsnapshot", "interpolates from one snapshot to another by an amount from 0 to 1." },
    { "readsnapshot", "reads snapshots from a file." },
    { "writesnapshot", "writes all snapshots to a file." },
    { "direct", "sets the filter of the direct sound." },
    { "room", "sets the filter of the room effect." },
    { "early", "sets the filter or a parameter of the early reflections." },
    { "cluster", "sets the filter or a parameter of the cluster." },
    { "reverb", "sets a parameter of the late reverberation." },
    { "roomsize", "sets the size of the room, from which the time structure follows." },
    { "bang", "sends all parameters and positions out of the left outlet." },
    { "reset", "sets filters and reverberation back to their defaults." },
    { "dump", "sends all attributes, or the named one, out of the right outlet." },
    { "postattributes", "posts all attributes, or the named one, to the Max window." },
    { "version", "posts the version of the object." },
    { "preset", "writes all attributes into the preset that is being stored." },
    { "recallpreset", "sets all attributes from the values that a preset stored." },
    { "exportdict", "writes all attributes to a JSON file." },
    { "dumpdict", "sends all attributes, or the named ones, as a dictionary out of the right outlet." },
    { "readdict", "sets attributes from the dictionary of that name." },
};

const NamedTable<Type>& names()
{
    static const auto table = [] {
        NamedTable<Type> filled;
        for (const auto& row : nameRows)
            filled.set (row.name, row.type);
        return filled;
    }();
    return table;
}

const NamedTable<qel::String>& methods()
{
    static const auto table = [] {
        NamedTable<qel::String> filled;
        for (const auto& row : methodRows)
            filled.set (row.name, *row.help == '\0' ? "0" : row.help);
        return filled;
    }();
    return table;
}

qel::String textOf (const qel::String& name, qel::String (MaxMspExternalDocumentation::*text)() const)
{
    if (names().find (name) == nullptr)
        return {};
    const auto documentation = make (typeOf (name));
    return documentation == nullptr ? qel::String() : (documentation.get()->*text)();
}

}

Type typeOf (const qel::String& name)
{
    if (const auto* type = names().find (name))
        return *type;
    qel::debugReport ("unknwon external : " + name);
    return Type (0);
}

std::unique_ptr<MaxMspExternalDocumentation> make (Type type)
{
    switch (type) {
    case Type::HalcyraTilda:
        return std::make_unique<External::HalcyraTilda>();
    case Type::HalcyraTildaControl:
        return std::make_unique<External::HalcyraTildaControl>();
    default:
        return nullptr;
    }
}

qel::String descriptionOf (const qel::String& name) { return textOf (name, &MaxMspExternalDocumentation::description); }
qel::String digestOf (const qel::String& name) { return textOf (name, &MaxMspExternalDocumentation::digest); }
qel::String seeAlsoOf (const qel::String& name) { return textOf (name, &MaxMspExternalDocumentation::seeAlso); }

qel::String methodHelp (const qel::String& name)
{
    if (const auto* help = methods().find (name))
        return *help;
    std::cerr << "unknwon method : " << name.c_str() << '\n';
    return {};
}

}
