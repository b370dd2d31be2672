#pragma once
#include <string>
#include <vector>

namespace orvanemax
{

/** Escapes text for use as XML content or as an attribute value. */
[[nodiscard]] std::string escaped (const std::string& text);

/** Builds XML text line by line, one tab per level. */
class XmlPage
{
public:
    using Attributes = std::vector<std::pair<const char*, std::string>>;

    /** Adds a line verbatim. */
    void line (const std::string& text);
    /** <name a="..."> and, with close, its </name>. */
    void open (const char* name, const Attributes& attributes = {});
    void close (const char* name);
    /** <name a="..." /> */
    void empty (const char* name, const Attributes& attributes);
    /** <name a="...">text</name>, with the text verbatim. */
    void element (const char* name, const std::string& text, const Attributes& attributes = {});

    [[nodiscard]] const std::string& text() const noexcept { return out; }

private:
    std::string out;
    std::size_t level = 0;
};

}
