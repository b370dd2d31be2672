#include "host/api/MaxApi.h"
#include "host/bench/Objects.h"
#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace
{
/** Precedes every block, so that memory from another allocator is recognised before it does harm. */
struct BlockHead
{
    t_ptr_size size;
    std::uint64_t mark;
};

constexpr std::uint64_t ours = 0x4D454D4F52592121;
constexpr int freshByte = 0xA5;

std::atomic<std::size_t> blocksGivenOut{ 0 };

BlockHead* allocate (t_ptr_size size)
{
    if (size > PTRDIFF_MAX - sizeof (BlockHead))
        return nullptr;
    // An empty block gets a byte too: leak checkers count a block as lost unless a pointer points into it.
    auto* head = static_cast<BlockHead*> (std::malloc (sizeof (BlockHead) + std::max<t_ptr_size> (size, 1)));
    if (head != nullptr) {
        *head = { size, ours };
        ++blocksGivenOut;
    }
    return head;
}

char* blockOf (BlockHead* head) { return reinterpret_cast<char*> (head + 1); }
}

std::size_t bench::numberOfBlocks() { return blocksGivenOut; }

char* sysmem_newptr (t_ptr_size size)
{
    auto* head = allocate (size);
    if (head == nullptr)
        return nullptr;
    // Deliberately not zero, to expose callers that rely on zeros.
    std::memset (blockOf (head), freshByte, size);
    return blockOf (head);
}

char* sysmem_newptrclear (t_ptr_size size)
{
    auto* block = sysmem_newptr (size);
    if (block != nullptr)
        std::memset (block, 0, size);
    return block;
}

void sysmem_freeptr (void* block)
{
    if (block == nullptr)
        return;
    auto* head = static_cast<BlockHead*> (block) - 1;
    if (head->mark != ours) {
        std::fputs ("bench: sysmem_freeptr got memory that sysmem did not give\n", stderr);
        std::abort();
    }
    head->mark = 0;
    std::free (head);
    --blocksGivenOut;
}

void sysmem_copyptr (const void* source, void* destination, t_ptr_size bytes)
{
    if (source != nullptr && destination != nullptr)
        std::memmove (destination, source, bytes);
}

char* strncpy_zero (char* destination, const char* source, t_clong size)
{
    if (destination == nullptr || size <= 0)
        return destination;
    const auto room = static_cast<std::size_t> (size) - 1;
    const auto length = source == nullptr ? 0 : std::min (std::strlen (source), room);
    if (length > 0)
        std::memcpy (destination, source, length);
    destination[length] = 0;
    return destination;
}
