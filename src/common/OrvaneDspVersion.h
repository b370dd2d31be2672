#pragma once
#include "text/OrvaneDspString.h"

namespace qel
{

inline constexpr int versionMajor = 5, versionMinor = 0, versionPatch = 0;

/** "libqel v5.0.0"; the long form appends the number format: "libqel v5.0.0 (32-bit float)". */
[[nodiscard]] String versionText (bool longForm);

}
