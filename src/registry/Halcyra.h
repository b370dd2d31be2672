#pragma once
#include "registry/MaxMspExternal.h"

/** Documentation texts of the room reverberator and of its control interface. */
namespace Ambrel::External
{

class HalcyraTilda : public MaxMspExternalDocumentation
{
public:
    [[nodiscard]] MaxMspExternal::Type type() const override;
    [[nodiscard]] qel::String description() const override;
    [[nodiscard]] qel::String digest() const override;
    [[nodiscard]] qel::String seeAlso() const override;
};

class HalcyraTildaControl : public MaxMspExternalDocumentation
{
public:
    [[nodiscard]] MaxMspExternal::Type type() const override;
    [[nodiscard]] qel::String description() const override;
    [[nodiscard]] qel::String digest() const override;
    [[nodiscard]] qel::String seeAlso() const override;
};

}
