#include "files/OrvaneDspFileHandle.h"

#include <utility>

namespace qel
{

namespace
{

/** Repeats until all is transferred, or a piece fails or is empty. */
template <typename Piece>
std::size_t inPieces (std::size_t count, Piece&& piece)
{
    std::size_t done = 0;
    while (done < count) {
        const auto step = piece (done);
        if (step <= 0)
            break;
        done += static_cast<std::size_t> (step);
    }
    return done;
}

}

std::int64_t FileHandle::size() const { return isOpen() ? filesystem::sizeOf (handle) : -1; }

std::size_t FileHandle::read (void* bytes, std::size_t count)
{
    return ! isOpen() ? 0 : inPieces (count, [&] (std::size_t done) {
        return filesystem::readSome (handle, static_cast<char*> (bytes) + done, count - done);
    });
}

std::size_t FileHandle::write (const void* bytes, std::size_t count)
{
    return ! isOpen() ? 0 : inPieces (count, [&] (std::size_t done) {
        return filesystem::writeSome (handle, static_cast<const char*> (bytes) + done, count - done);
    });
}

bool FileHandle::finish()
{
    if (! isOpen())
        return false;
    const bool isOnDisk = filesystem::flush (handle);
    return filesystem::close (std::exchange (handle, filesystem::noHandle)) && isOnDisk;
}

void FileHandle::close() noexcept
{
    if (isOpen())
        filesystem::close (std::exchange (handle, filesystem::noHandle));
}

}
