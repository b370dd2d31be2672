#include "osc/OrvaneDspOscDocumentation.h"

#include <algorithm>

namespace qel
{

void OscDocumentation::add (const OscAddress& address, const String& arguments, const String& description)
{
    const Entry entry{ address, arguments, description };
    const bool isRoot = address.parts().empty();
    if (! isRoot && std::find (list.begin(), list.end(), entry) == list.end())
        list.push_back (entry);
}

}
