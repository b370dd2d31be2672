#pragma once
#include "memory/OrvaneDspMemoryOutput.h"
#include "text/OrvaneDspString.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace qel
{

/** How a document is laid out. */
struct XmlLayout
{
    bool allOnOneLine = false;
    bool includeHeader = true;
    String dtd;
    String encoding = "UTF-8";
    /** Attributes go on in a new line once a line of them is longer. */
    std::size_t lineWrapLength = 60;
};

/** A number with as many digits as it takes to read the same one back, as a double or as the float that it was. */
[[nodiscard]] String xmlNumber (double value);

/** Writes a document as UTF-8 text piece by piece, lines ending with "\r\n". Between any two pieces the output may be
    emptied; an element's attributes follow its start. Raises only what the output raises. */
class XmlWriter
{
public:
    /** Both are to outlive the writer. */
    XmlWriter (MemoryOutput& outputToUse, const XmlLayout& layoutToUse);

    /** What stands before the root: the header, if the layout has one, and the DTD. */
    void startDocument();
    void endDocument();

    void start (std::string_view tagName);
    void attribute (std::string_view name, std::string_view value);
    void text (std::string_view characters);
    /** Ends the innermost element that is open. */
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
    std::size_t lineLength = 0; // of the attributes that stand in this line
};

}
