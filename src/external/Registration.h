#pragma once
#include "host/api/MaxApi.h"

namespace halcyra
{

/** The class, for object_alloc; null before ext_main. */
[[nodiscard]] t_class* controlClass() noexcept;

}
