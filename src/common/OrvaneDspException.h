#pragma once
#include "text/OrvaneDspString.h"

#include <cstdint>
#include <exception>

namespace qel
{

/** A source location as two plain words, so that passing it costs nothing until it is reported. */
struct SourcePlace
{
    const char* file;
    std::uint64_t line;
};

/** The current source location. */
#define QEL_HERE (::qel::SourcePlace{ __FILE__, static_cast<std::uint64_t> (__LINE__) })

/** Where an exception was thrown: the file's base name, which may be empty, and the line, 0 if unknown. */
struct SourceLocation
{
    SourceLocation() = default;
    SourceLocation (const SourcePlace& place);
    /** Strips leading folders from the file. */
    SourceLocation (const String& file, std::uint64_t line);

    /** The file in double quotes, followed by " (line N)" if the line is known. */
    [[nodiscard]] String toText() const;

    String file;
    std::uint64_t line = 0;
};

/** Writes a line to stderr and, where the platform has one, to the debugger's output. Any thread. */
void debugReport (const String& text);

/** Base class of the library's exceptions. Logs itself by debugReport on construction, caught or not; copies do
    not log. */
class Exception : public std::exception
{
public:
    explicit Exception (const String& text, const SourceLocation& where = {}, bool report = true,
                        bool exitAfterwards = false);
    /** Rethrows another exception's message from here. */
    Exception (const Exception& other, const SourceLocation& where, bool report = true, bool exitAfterwards = false);
    explicit Exception (const std::exception& other, const SourceLocation& where = {}, bool report = true,
                        bool exitAfterwards = false);

    [[nodiscard]] const char* what() const noexcept override { return message.c_str(); }
    [[nodiscard]] const SourceLocation& where() const noexcept { return location; }

private:
    String message;
    SourceLocation location;
};

namespace exceptions
{

/** Something of an unknown type was thrown. */
class Unknown : public Exception
{
public:
    explicit Unknown (const SourceLocation& where) : Exception ("Unknown exception", where) {}
};

}
}
