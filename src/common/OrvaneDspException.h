#pragma once
#include "text/OrvaneDspString.h"

#include <cstdint>
#include <exception>

namespace qel
{

/** A place in the sources as the compiler tells it: two words, so that carrying it costs nothing until it is told. */
struct SourcePlace
{
    const char* file;
    std::uint64_t line;
};

/** The place where it stands. */
#define QEL_HERE (::qel::SourcePlace{ __FILE__, static_cast<std::uint64_t> (__LINE__) })

/** Where an exception was raised: the source file's bare name, which may be empty, and its line, 0 for not known. */
struct SourceLocation
{
    SourceLocation() = default;
    SourceLocation (const SourcePlace& place);
    /** Leading folders of the file are removed. */
    SourceLocation (const String& file, std::uint64_t line);

    /** The file in double quotation marks, and " (line N)" for a known line. */
    [[nodiscard]] String toText() const;

    String file;
    std::uint64_t line = 0;
};

/** A line on the error stream and, where the platform has one, on the debug channel. Any thread. */
void debugReport (const String& text);

/** The root of the library's failures. It tells itself when it is constructed, caught or not, by debugReport. Copies
    are silent. */
class Exception : public std::exception
{
public:
    explicit Exception (const String& text, const SourceLocation& where = {}, bool report = true,
                        bool exitAfterwards = false);
    /** The message of another one, raised again from here. */
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

/** What was thrown is no exception of a known kind. */
class Unknown : public Exception
{
public:
    explicit Unknown (const SourceLocation& where) : Exception ("Unknown exception", where) {}
};

}
}
