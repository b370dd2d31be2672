#include "common/OrvaneDspException.h"

#include <cstdio>
#include <cstdlib>

namespace qel
{

namespace
{

String bareName (const String& file)
{
    const auto separator = file.str().find_last_of ("/\\");
    return separator == std::string::npos ? file : String (file.str().substr (separator + 1));
}

void tell (const String& message, const SourceLocation& where)
{
    String text = "Exception occurred: ";
    if (! where.file.empty()) {
        text = String ("Exception occurred in \"") + where.file + "\"";
        if (where.line != 0)
            text += String (" (line ") + std::to_string (where.line) + ")";
        text += ": \n";
    }
    text += message + "\n\n";
    std::fputs ((text + "\n").c_str(), stderr);
}

}

SourceLocation::SourceLocation (const String& source, std::uint64_t sourceLine)
    : file (bareName (source)), line (sourceLine)
{}

Exception::Exception (const String& what, const SourceLocation& where, bool report, bool exitAfterwards)
    : message (what), location (where)
{
    if (report)
        tell (message, location);
    if (exitAfterwards)
        std::exit (1);
}

Exception::Exception (const std::exception& other, const SourceLocation& where, bool report, bool exitAfterwards)
    : Exception (String (other.what()), where, report, exitAfterwards)
{}

}
