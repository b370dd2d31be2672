#pragma once
#include "text/OrvaneDspString.h"

namespace qel
{

inline constexpr int versionMajor = 5, versionMinor = 0, versionPatch = 0;

/** "libqel v5.0.0", and in the long form the width of its numbers behind it: "libqel v5.0.0 (32-bit float)". */
[[nodiscard]] String versionText (bool longForm);

}
