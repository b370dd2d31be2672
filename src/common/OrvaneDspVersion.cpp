#include "common/OrvaneDspVersion.h"

namespace qel
{

String versionText (bool longForm)
{
    constexpr int bitsPerByte = 8;
    const String brief = "libqel v" + String (versionMajor) + "." + String (versionMinor) + "." + String (versionPatch);
    return longForm ? brief + " (" + String (static_cast<int> (sizeof (float)) * bitsPerByte) + "-bit float)" : brief;
}

}
