#pragma once
#include <string>

/** The version of the external. */
namespace halcyra
{

inline constexpr int versionNumbers[] = { 4, 9, 2 };

/** "4.9.2" */
[[nodiscard]] inline std::string versionText()
{
    return std::to_string (versionNumbers[0]) + "." + std::to_string (versionNumbers[1]) + "." +
           std::to_string (versionNumbers[2]);
}

/** "4.9.2 (Build Nov 21 2026) (32 bits float)" */
[[nodiscard]] inline std::string buildText() { return versionText() + " (Build " __DATE__ ") (32 bits float)"; }

}
