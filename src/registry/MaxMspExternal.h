#pragma once
#include "text/OrvaneDspString.h"

#include <cstdint>
#include <memory>

/** The catalogue of the family's objects: what each is called, and the texts of its reference page.
    Looking up is free of side effects but for the report of an unknown name. Any thread. */
namespace Ambrel
{

namespace MaxMspExternal
{

/** A number for each object of the family, 0 to 151. Only the objects that have a row here are named. */
enum class Type : std::int32_t
{
    HalcyraTilda = 0,
    HalcyraTildaControl = 1,
    Last = 151
};

}

/** The texts of one object. A description may hold marks such as "<br/><br/>"; see-also names are split by ", ". */
class MaxMspExternalDocumentation
{
public:
    virtual ~MaxMspExternalDocumentation() = default;
    [[nodiscard]] virtual MaxMspExternal::Type type() const = 0;
    [[nodiscard]] virtual qel::String description() const = 0;
    [[nodiscard]] virtual qel::String digest() const = 0;
    [[nodiscard]] virtual qel::String seeAlso() const = 0;
};

namespace MaxMspExternal
{

/** The type of an object's name. An unknown name is told by qel::debugReport as "unknwon external : NAME" and gives type 0. */
[[nodiscard]] Type typeOf (const qel::String& name);

/** The documentation of a type; null for one that has no texts here. */
[[nodiscard]] std::unique_ptr<MaxMspExternalDocumentation> make (Type type);

/** Texts by an object's name; empty for an unknown one. */
[[nodiscard]] qel::String descriptionOf (const qel::String& name);
[[nodiscard]] qel::String digestOf (const qel::String& name);
[[nodiscard]] qel::String seeAlsoOf (const qel::String& name);

/** The help text of a message that several objects share. An unknown one is reported as "unknwon method : NAME" on
    the error stream and gives the empty text. */
[[nodiscard]] qel::String methodHelp (const qel::String& name);

}

}
