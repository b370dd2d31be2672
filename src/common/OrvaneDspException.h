#pragma once
#include "text/OrvaneDspString.h"

#include <cstdint>
#include <exception>

namespace qel
{

/** Where an exception was raised: the source file's bare name and its line, 0 for not known. */
struct SourceLocation
{
    SourceLocation() = default;
    /** Leading folders of the file are removed. */
    SourceLocation (const String& file, std::uint64_t line);

    String file;
    std::uint64_t line = 0;
};

/** The place where it stands, for an exception's location. */
#define QEL_HERE ::qel::SourceLocation (__FILE__, static_cast<std::uint64_t> (__LINE__))

/** The root of the library's failures. It tells itself on the error stream when it is constructed, caught or not. */
class Exception : public std::exception
{
public:
    explicit Exception (const String& message, const SourceLocation& where = {}, bool report = true,
                        bool exitAfterwards = false);
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
