#include "common/OrvaneDspException.h"

#include <cstdio>
#include <cstdlib>

#if defined(_WIN32)
#include <windows.h>
#endif

namespace qel
{

namespace
{

String bareName (const String& file)
{
    const auto separator = file.str().find_last_of ("/\\");
    return separator == std::string::npos ? file : file.substr (separator + 1);
}

String report (const String& message, const SourceLocation& where)
{
    const String body = message + "\n\n";
    if (where.file.empty())
        return "Exception occurred: " + body;
    return "Exception occurred in " + where.toText() + ": \n" + body;
}

}

void debugReport (const String& text)
{
    std::fputs ((text + "\n").c_str(), stderr);
#if defined(_WIN32)
    OutputDebugStringA (("qel >> " + text + "\n").c_str());
#endif
}

SourceLocation::SourceLocation (const SourcePlace& place) : SourceLocation (String (place.file), place.line) {}

SourceLocation::SourceLocation (const String& source, std::uint64_t sourceLine)
    : file (bareName (source)), line (sourceLine)
{}

String SourceLocation::toText() const
{
    const String name = "\"" + file + "\"";
    return line == 0 ? name : name + " (line " + std::to_string (line) + ")";
}

Exception::Exception (const String& text, const SourceLocation& where, bool reportNow, bool exitAfterwards)
    : message (text), location (where)
{
    if (reportNow)
        debugReport (report (message, location));
    if (exitAfterwards)
        std::exit (1);
}

Exception::Exception (const Exception& other, const SourceLocation& where, bool reportNow, bool exitAfterwards)
    : Exception (other.message, where, reportNow, exitAfterwards)
{}

Exception::Exception (const std::exception& other, const SourceLocation& where, bool reportNow, bool exitAfterwards)
    : Exception (String (other.what()), where, reportNow, exitAfterwards)
{}

}
