#pragma once
#include <string>
#include <vector>

namespace orvanemax
{

/** Text as it stands between two marks, or between quotation marks. */
[[nodiscard]] std::string escaped (const std::string& text);

/** An XML text that is built line by line, one tab for each level. */
class XmlPage
{
public:
    using Attributes = std::vector<std::pair<const char*, std::string>>;

    /** A line as it stands. */
    void line (const std::string& text);
    /** <name a="..."> and, with close, its </name>. */
    void open (const char* name, const Attributes& attributes = {});
    void close (const char* name);
    /** <name a="..." /> */
    void empty (const char* name, const Attributes& attributes);
    /** <name a="...">text</name>, the text as it stands. */
    void element (const char* name, const std::string& text, const Attributes& attributes = {});

    [[nodiscard]] const std::string& text() const noexcept { return out; }

private:
    std::string out;
    std::size_t level = 0;
};

}
