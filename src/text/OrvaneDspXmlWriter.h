#pragma once
#include "memory/OrvaneDspMemoryOutput.h"
#include "text/OrvaneDspString.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace qel
{

/** How to lay out a document. */
struct XmlLayout
{
    bool allOnOneLine = false;
    bool includeHeader = true;
    String dtd;
    String encoding = "UTF-8";
    /** Wraps attributes onto a new line once a line of them is longer. */
    std::size_t lineWrapLength = 60;
};

/** The named escape of a character that cannot stand for itself in text and attributes, or null. */
[[nodiscard]] const char* xmlEscape (char c) noexcept;

/** A number with as many digits as needed to read it back, as a double or as the original float. */
[[nodiscard]] String xmlNumber (double value);

/** Writes a document as UTF-8 piece by piece, with "\r\n" line ends. The output may be emptied between any two pieces;
    attributes follow their element's start. Throws only what the output throws. */
class XmlWriter
{
public:
    /** Both must outlive the writer. */
    XmlWriter (MemoryOutput& outputToUse, const XmlLayout& layoutToUse);

    /** Writes the header, if the layout has one, and the DTD. */
    void startDocument();
    void endDocument();

    void start (std::string_view tagName);
    void attribute (std::string_view name, std::string_view value);
    void text (std::string_view characters);
    /** Ends the innermost open element. */
    void end();

private:
    struct Open
    {
        std::string tagName;
        std::size_t indentation = 0;
        bool hasAttributes = false;
        bool hasContent = false;
        bool isAfterText = false;
    };

    void header();
    void put (std::string_view bytes) { output.write (bytes.data(), bytes.size()); }
    void escaped (std::string_view text, bool inAttribute);
    void newLine (std::size_t indentation);
    void beginContent (Open& element);

    MemoryOutput& output;
    const XmlLayout& layout;
    std::vector<Open> open;
    std::size_t lineLength = 0; // of the attributes on this line
};

}
