#include "text/OrvaneDspXmlReader.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace
{

qel::String rewritten (const qel::String& document)
{
    const auto root = qel::XmlReader().read (document);
    if (root == nullptr)
        std::abort(); // the writer's own text must be valid XML
    qel::MemoryOutput output;
    qel::XmlElement::Layout layout;
    layout.allOnOneLine = true;
    root->writeTo (output, layout);
    return output.toString();
}

}

/** Any text is read or rejected; what is read can be written and read again, and is stable after one round: that drops
    empty and blank pieces of text. */
extern "C" int LLVMFuzzerTestOneInput (const std::uint8_t* data, std::size_t size)
{
    qel::XmlReader reader;
    const qel::String document (std::string (reinterpret_cast<const char*> (data), size));
    if (reader.read (document) == nullptr) {
        if (reader.lastError().empty())
            std::abort();
        return 0;
    }
    const auto settled = rewritten (rewritten (document));
    if (rewritten (settled) != settled)
        std::abort();
    return 0;
}
