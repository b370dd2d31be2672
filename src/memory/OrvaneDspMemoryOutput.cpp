#include "memory/OrvaneDspMemoryOutput.h"
#include "common/OrvaneDspException.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace qel
{

void MemoryOutput::write (const void* bytes, std::size_t count)
{
    if (count > 0)
        std::memcpy (makeRoomFor (count), bytes, count);
}

void MemoryOutput::write (const char* characters)
{
    if (characters != nullptr)
        write (characters, std::strlen (characters));
}

void MemoryOutput::writeRepeated (char byte, std::size_t count)
{
    if (count > 0)
        std::memset (makeRoomFor (count), byte, count);
}

void MemoryOutput::setPosition (std::size_t position) noexcept { writePosition = std::min (position, highWater); }

/** Returns where to write the next count bytes, and moves the position past them. */
std::byte* MemoryOutput::makeRoomFor (std::size_t count)
{
    constexpr std::size_t slack = 32, mostAhead = 1048576;
    if (count > std::numeric_limits<std::size_t>::max() / 2 - writePosition)
        throw Exception ("allocation overflow.", QEL_HERE);

    const std::size_t needed = writePosition + count;
    if (needed >= capacity())
        block.resize ((needed + slack + std::min (needed / 2, mostAhead)) / slack * slack);

    std::byte* const place = block.data() + writePosition;
    writePosition = needed;
    highWater = std::max (highWater, needed);
    return place;
}

}
