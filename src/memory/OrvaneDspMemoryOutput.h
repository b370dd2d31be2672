#pragma once
#include "memory/OrvaneDspHeapBlock.h"
#include "text/OrvaneDspString.h"

namespace qel
{

/** A growing byte buffer to write to, at a position that can be moved back; the size is the highest position ever
    written. Growth is guarded. */
class MemoryOutput
{
public:
    explicit MemoryOutput (std::size_t initialCapacity = 256) : block (initialCapacity) {}

    void write (const void* bytes, std::size_t count);
    void write (const char* characters);
    void write (const String& text) { write (text.c_str(), text.size()); }
    void write (char byte) { write (&byte, 1); }
    void writeRepeated (char byte, std::size_t count);

    MemoryOutput& operator<< (const char* characters)
    {
        write (characters);
        return *this;
    }
    MemoryOutput& operator<< (const String& text)
    {
        write (text);
        return *this;
    }
    MemoryOutput& operator<< (char byte)
    {
        write (byte);
        return *this;
    }

    [[nodiscard]] const char* data() const noexcept { return reinterpret_cast<const char*> (block.data()); }
    [[nodiscard]] std::size_t size() const noexcept { return highWater; }
    [[nodiscard]] std::size_t capacity() const noexcept { return block.size(); }
    [[nodiscard]] std::size_t position() const noexcept { return writePosition; }
    [[nodiscard]] String toString() const { return { std::string (data(), size()) }; }

    /** Clamped to the size. */
    void setPosition (std::size_t position) noexcept;
    /** Discards the contents but keeps the storage. */
    void reset() noexcept { writePosition = highWater = 0; }

private:
    std::byte* makeRoomFor (std::size_t count);

    HeapBlock block;
    std::size_t writePosition = 0, highWater = 0;
};

}
