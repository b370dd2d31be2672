#pragma once
#include <cstddef>

namespace qel
{

/** Owns a block of raw bytes on aligned storage. Copying copies the bytes; an empty block is null with a count of 0.
    Growth is guarded; if it fails the block is unchanged. */
class HeapBlock
{
public:
    HeapBlock() = default;
    /** Zero-filled bytes. */
    explicit HeapBlock (std::size_t bytes);
    /** Copies bytes from elsewhere. */
    HeapBlock (const void* source, std::size_t bytes);
    HeapBlock (const HeapBlock& other);
    HeapBlock (HeapBlock&& other) noexcept;
    HeapBlock& operator= (const HeapBlock& other);
    HeapBlock& operator= (HeapBlock&& other) noexcept;
    ~HeapBlock();

    [[nodiscard]] std::byte* data() noexcept { return bytes; }
    [[nodiscard]] const std::byte* data() const noexcept { return bytes; }
    [[nodiscard]] std::size_t size() const noexcept { return count; }
    [[nodiscard]] bool empty() const noexcept { return count == 0; }

    /** Keeps what fits; new bytes are 0. A size of 0 frees the storage. */
    void resize (std::size_t newCount);
    void clear() noexcept;

    friend bool operator== (const HeapBlock& a, const HeapBlock& b) noexcept;
    friend bool operator!= (const HeapBlock& a, const HeapBlock& b) noexcept { return ! (a == b); }

private:
    std::byte* bytes = nullptr;
    std::size_t count = 0;
};

}
