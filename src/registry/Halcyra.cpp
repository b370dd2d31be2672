#include "registry/Halcyra.h"

namespace Ambrel::External
{

MaxMspExternal::Type HalcyraTilda::type() const { return MaxMspExternal::Type::HalcyraTilda; }

qel::String HalcyraTilda::digest() const { return "Room reverberator for spatialized sources"; }

qel::String HalcyraTilda::description() const
{
    return "halcyra~ places sound sources in a virtual room. Each source has a direct sound, early reflections, a "
           "cluster of denser reflections and a late reverberation made by a feedback delay network.<br/><br/>"
           "Its parameters are set by messages; halcyra~.control edits them in a window and sends those messages.";
}

qel::String HalcyraTilda::seeAlso() const { return "halcyra~.control"; }

MaxMspExternal::Type HalcyraTildaControl::type() const { return MaxMspExternal::Type::HalcyraTildaControl; }

qel::String HalcyraTildaControl::digest() const { return "Control interface for halcyra~"; }

qel::String HalcyraTildaControl::description() const
{
    return "halcyra~.control edits the parameters of the halcyra~ reverberator in a floating window: the time "
           "structure of the room, its four filters, and the scene of sources, speakers and listener.<br/><br/>"
           "Every edit leaves the left outlet as a message that halcyra~ understands, and every such message sent to "
           "the inlet updates the window. The right outlet answers queries and sends dictionaries.";
}

qel::String HalcyraTildaControl::seeAlso() const { return "halcyra~, pattrstorage, preset"; }

}
