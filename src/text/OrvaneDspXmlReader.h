#pragma once
#include "text/OrvaneDspXmlElement.h"

#include <memory>

namespace qel
{

/** Reads XML text into a tree. Never raises and never recurses, so that no text, however deep, ends the process. */
class XmlReader
{
public:
    /** The root element, or null; then lastError() says why. */
    [[nodiscard]] std::unique_ptr<XmlElement> read (const String& text) noexcept;

    /** Of the last read; empty if it went well. */
    [[nodiscard]] const String& lastError() const noexcept { return error; }

private:
    String error;
};

}
