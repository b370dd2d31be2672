#pragma once
#include "host/api/MaxApi.h"

namespace orvanemax
{

/** The name of a host error code. */
[[nodiscard]] constexpr const char* errorText (t_max_err error) noexcept
{
    switch (error) {
    case MAX_ERR_NONE:
        return "MAX_ERR_NONE";
    case MAX_ERR_GENERIC:
        return "MAX_ERR_GENERIC";
    case MAX_ERR_INVALID_PTR:
        return "MAX_ERR_INVALID_PTR";
    case MAX_ERR_DUPLICATE:
        return "MAX_ERR_DUPLICATE";
    case MAX_ERR_OUT_OF_MEM:
        return "MAX_ERR_OUT_OF_MEM";
    default:
        return "unknown MAX_ERR";
    }
}

}
