#pragma once
#include "text/OrvaneDspString.h"

#include <cstddef>
#include <cstdint>

/** The few system calls that the file classes need; paths are UTF-8. Never throws. Any thread. */
namespace qel::filesystem
{

#ifdef _WIN32
inline constexpr char separator = '\\';
inline constexpr std::size_t longestPath = 32767;
#else
inline constexpr char separator = '/';
inline constexpr std::size_t longestPath = 4095;
#endif

enum class Kind
{
    nothing,
    file,
    folder
};

/** What exists at a path; nothing also if its attributes can't be read. */
[[nodiscard]] Kind kindOf (const String& path);

[[nodiscard]] bool makeFolder (const String& path);
[[nodiscard]] bool removeFile (const String& path);
/** Removes an empty folder only. */
[[nodiscard]] bool removeFolder (const String& path);
/** Moves; replaces an existing target file atomically, so that the target never goes missing. */
[[nodiscard]] bool move (const String& from, const String& to);

/** The process's working folder; empty if there is none. */
[[nodiscard]] String currentFolder();
/** The value of an environment variable; empty if it is not set. */
[[nodiscard]] String environment (const char* name);

/** An open file. Only regular files open: reading from a device or a pipe could block forever. */
using Handle = std::intptr_t;
inline constexpr Handle noHandle = -1;

[[nodiscard]] Handle openForReading (const String& path);
/** Creates the file if needed and writes at its end. Others may read it meanwhile. */
[[nodiscard]] Handle openForAppending (const String& path);
/** In bytes; negative if unknown. */
[[nodiscard]] std::int64_t sizeOf (Handle handle);
/** Returns the bytes read, possibly fewer than requested; 0 at the end, negative on failure. */
[[nodiscard]] std::int64_t readSome (Handle handle, void* bytes, std::size_t count);
/** Returns the bytes written, possibly fewer than requested; negative on failure. */
[[nodiscard]] std::int64_t writeSome (Handle handle, const void* bytes, std::size_t count);
/** Waits until all data is on disk: a full disk may only fail here. */
[[nodiscard]] bool flush (Handle handle);
/** Invalidates the handle, whatever the result. */
bool close (Handle handle);

}
