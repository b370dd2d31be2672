#include "files/OrvaneDspFileSystem.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qel::filesystem
{

namespace
{

/** Repeats a call that a signal interrupted. */
template <typename Call>
auto uninterrupted (Call&& call)
{
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

/** Without O_NONBLOCK opening a pipe would block until someone opens its other end. */
Handle openOrdinary (const String& path, int flags)
{
    const int descriptor =
        uninterrupted ([&] { return ::open (path.c_str(), flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0666); });
    struct stat facts = {};
    if (descriptor == -1 || (::fstat (descriptor, &facts) == 0 && S_ISREG (facts.st_mode)))
        return descriptor;
    ::close (descriptor);
    return noHandle;
}

int descriptorOf (Handle handle) { return static_cast<int> (handle); }

}

Kind kindOf (const String& path)
{
    struct stat facts = {};
    if (path.empty() || ::stat (path.c_str(), &facts) != 0)
        return Kind::nothing;
    return S_ISDIR (facts.st_mode) ? Kind::folder : Kind::file;
}

bool makeFolder (const String& path) { return ::mkdir (path.c_str(), 0777) == 0; }
bool removeFile (const String& path) { return ::unlink (path.c_str()) == 0; }
bool removeFolder (const String& path) { return ::rmdir (path.c_str()) == 0; }
bool move (const String& from, const String& to) { return std::rename (from.c_str(), to.c_str()) == 0; }

String currentFolder()
{
    std::array<char, 8192> buffer{};
    return ::getcwd (buffer.data(), buffer.size());
}

String environment (const char* name) { return std::getenv (name); }

Handle openForReading (const String& path) { return openOrdinary (path, O_RDONLY); }
Handle openForAppending (const String& path) { return openOrdinary (path, O_WRONLY | O_CREAT | O_APPEND); }

std::int64_t sizeOf (Handle handle)
{
    struct stat facts = {};
    return ::fstat (descriptorOf (handle), &facts) == 0 ? facts.st_size : -1;
}

std::int64_t readSome (Handle handle, void* bytes, std::size_t count)
{
    return uninterrupted ([&] { return ::read (descriptorOf (handle), bytes, count); });
}

std::int64_t writeSome (Handle handle, const void* bytes, std::size_t count)
{
    return uninterrupted ([&] { return ::write (descriptorOf (handle), bytes, count); });
}

bool flush (Handle handle)
{
    return uninterrupted ([&] { return ::fsync (descriptorOf (handle)); }) == 0;
}

bool close (Handle handle) { return ::close (descriptorOf (handle)) == 0; }

}
