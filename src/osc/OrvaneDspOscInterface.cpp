#include "osc/OrvaneDspOscInterface.h"

namespace qel
{

bool OscInterface::processOscMessage (const OSCMessage&) { return false; }

OSCBundle OscInterface::getOscState() { return {}; }

Vector<OscDocumentation::Entry> OscInterface::getOscDocumentation()
{
    static constexpr const char* rows[][3] = {
        { "/post/version", "", "prints the object version in the Max window" },
        { "/dump", "", "send the current state of the object through the dump outlet" },
        { "/preset/load", "[string]", "loads a preset from file (.txt, .xml, .osc)" },
        { "/preset/export", "[string]", "exports a preset to file (.txt, .xml, .osc, .json)" },
    };
    OscDocumentation documentation;
    for (const auto& [address, arguments, description] : rows)
        documentation.add (OscAddress (address), arguments, description);
    return documentation.entries();
}

}
