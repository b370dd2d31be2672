#pragma once
#include "text/OrvaneDspString.h"

#include <cstddef>
#include <cstdint>

/** The few calls of the operating system that files stand on; paths are UTF-8. Nothing here raises. Any thread. */
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

/** What stands at a path; nothing also when its attributes can't be read. */
[[nodiscard]] Kind kindOf (const String& path);

[[nodiscard]] bool makeFolder (const String& path);
[[nodiscard]] bool removeFile (const String& path);
/** Only an empty folder goes. */
[[nodiscard]] bool removeFolder (const String& path);
/** Moves; a file that stands at the target is replaced in one step, so that there is never none. */
[[nodiscard]] bool move (const String& from, const String& to);

/** The process's working folder; empty when there is none. */
[[nodiscard]] String currentFolder();
/** A value of the environment; empty when it is not set. */
[[nodiscard]] String environment (const char* name);

/** An open file. Only ordinary files open: reading a device or a pipe could wait for ever. */
using Handle = std::intptr_t;
inline constexpr Handle noHandle = -1;

[[nodiscard]] Handle openForReading (const String& path);
/** Makes the file if there is none, and writes at its end. Others may read it meanwhile. */
[[nodiscard]] Handle openForAppending (const String& path);
/** In bytes; negative when it can't be told. */
[[nodiscard]] std::int64_t sizeOf (Handle handle);
/** Bytes read, 0 at the end, negative on failure; they may be fewer than asked for. */
[[nodiscard]] std::int64_t readSome (Handle handle, void* bytes, std::size_t count);
/** Bytes written, negative on failure; they may be fewer than asked for. */
[[nodiscard]] std::int64_t writeSome (Handle handle, const void* bytes, std::size_t count);
/** Waits until all that was written is on the disk: a full one may say so only now. */
[[nodiscard]] bool flush (Handle handle);
/** The handle is gone, whatever the result. */
bool close (Handle handle);

}
