#pragma once
#include "text/OrvaneDspString.h"

#include <cstdint>
#include <memory>

/** Catalogue of the family's objects: their names and the texts of their reference pages.
    Look-ups have no side effect except logging an unknown name. Any thread. */
namespace Ambrel
{

namespace MaxMspExternal
{

/** Identifies each object of the family, 0 to 151. Only objects with a row here have names. */
enum class Type : std::int32_t
{
    HalcyraTilda = 0,
    HalcyraTildaControl = 1,
    Last = 151
};

}

/** The texts of one object. Descriptions may contain marks such as "<br/><br/>"; see-also names are separated by ",
    ". */
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

/** The type for an object's name. Logs an unknown name by qel::debugReport as "unknwon external : NAME" and returns
    0. */
[[nodiscard]] Type typeOf (const qel::String& name);

/** The documentation of a type; null if it has none here. */
[[nodiscard]] std::unique_ptr<MaxMspExternalDocumentation> make (Type type);

/** Texts by object name; empty for an unknown name. */
[[nodiscard]] qel::String descriptionOf (const qel::String& name);
[[nodiscard]] qel::String digestOf (const qel::String& name);
[[nodiscard]] qel::String seeAlsoOf (const qel::String& name);

/** The help text of a common message. Logs an unknown name to stderr as "unknwon method : NAME" and returns empty
    text. */
[[nodiscard]] qel::String methodHelp (const qel::String& name);

}

}
