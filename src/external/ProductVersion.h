#pragma once
#include <string>

/** The external's version. */
namespace halcyra
{

/** "4.9.2", from CMakeLists.txt. */
[[nodiscard]] inline std::string versionText() { return HALCYRA_VERSION; }

/** "4.9.2 (Build Nov 21 2026) (32 bits float)" */
[[nodiscard]] inline std::string buildText() { return versionText() + " (Build " __DATE__ ") (32 bits float)"; }

}
