#include "memory/OrvaneDspHeapBlock.h"
#include "common/OrvaneDspAlloc.h"
#include "common/OrvaneDspGuard.h"

#include <cstring>
#include <utility>

namespace qel
{

HeapBlock::HeapBlock (std::size_t size) { resize (size); }

HeapBlock::HeapBlock (const void* source, std::size_t size)
{
    if (size == 0)
        return;
    guardedGrowth (QEL_HERE, GuardText::whatAlone, [&] { bytes = static_cast<std::byte*> (allocate (size)); });
    std::memcpy (bytes, source, size);
    count = size;
}

HeapBlock::HeapBlock (const HeapBlock& other) : HeapBlock (other.bytes, other.count) {}

HeapBlock::HeapBlock (HeapBlock&& other) noexcept
    : bytes (std::exchange (other.bytes, nullptr)), count (std::exchange (other.count, 0))
{}

HeapBlock& HeapBlock::operator= (const HeapBlock& other) { return *this = HeapBlock (other); }

HeapBlock& HeapBlock::operator= (HeapBlock&& other) noexcept
{
    std::swap (bytes, other.bytes);
    std::swap (count, other.count);
    return *this;
}

HeapBlock::~HeapBlock() { qel::free (bytes); }

void HeapBlock::resize (std::size_t newCount)
{
    if (newCount == count)
        return;
    if (newCount == 0) {
        clear();
        return;
    }
    guardedGrowth (QEL_HERE, GuardText::whatAlone,
                   [&] { bytes = static_cast<std::byte*> (reallocate (bytes, newCount)); });
    if (newCount > count)
        std::memset (bytes + count, 0, newCount - count);
    count = newCount;
}

void HeapBlock::clear() noexcept
{
    qel::free (std::exchange (bytes, nullptr));
    count = 0;
}

bool operator== (const HeapBlock& a, const HeapBlock& b) noexcept
{
    return a.count == b.count && (a.count == 0 || std::memcmp (a.bytes, b.bytes, a.count) == 0);
}

}
