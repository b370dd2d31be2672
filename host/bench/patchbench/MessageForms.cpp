#include "host/bench/patchbench/MessageForms.h"

namespace patchbench
{

std::vector<std::string> split (const std::string& text, const std::string& separator)
{
    std::vector<std::string> parts;
    std::size_t begin = 0;
    for (auto end = text.find (separator); end != std::string::npos; end = text.find (separator, begin)) {
        parts.push_back (text.substr (begin, end - begin));
        begin = end + separator.size();
    }
    parts.push_back (text.substr (begin));
    return parts;
}

MessageForms readMessageForms (const std::string& table)
{
    MessageForms forms;
    for (const auto& line : split (table, "\n")) {
        const auto columns = split (line, " | ");
        if (columns.size() == 3)
            forms.push_back ({ columns[0], columns[1], columns[2] });
    }
    return forms;
}

}
