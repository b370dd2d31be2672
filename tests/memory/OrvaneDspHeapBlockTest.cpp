#include "memory/OrvaneDspHeapBlock.h"
#include "common/OrvaneDspException.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>

using qel::HeapBlock;

namespace
{

std::string textOf (const HeapBlock& block) { return { reinterpret_cast<const char*> (block.data()), block.size() }; }

}

TEST (HeapBlock, IsNullWhenItIsEmpty)
{
    HeapBlock none, gone ("abc", 3), nothing ("abc", 0);
    gone.clear();
    HeapBlock shrunk ("abc", 3);
    shrunk.resize (0);
    for (const HeapBlock* block : { &none, &gone, &nothing, &shrunk }) {
        EXPECT_EQ (block->data(), nullptr);
        EXPECT_EQ (block->size(), 0u);
    }
    EXPECT_EQ (none, gone);
    EXPECT_EQ (HeapBlock (none), none);
}

TEST (HeapBlock, CopiesBytesAndMovesStorage)
{
    HeapBlock block ("a\0b", 3);
    HeapBlock copy = block;
    copy.data()[0] = std::byte{ 'x' };
    EXPECT_EQ (textOf (block), std::string ("a\0b", 3));
    EXPECT_NE (copy, block);

    const auto* storage = block.data();
    const HeapBlock moved = std::move (block);
    EXPECT_EQ (moved.data(), storage);
    copy = moved;
    EXPECT_EQ (copy, moved);
    EXPECT_EQ (reinterpret_cast<std::uintptr_t> (copy.data()) % 16, 0u);
}

TEST (HeapBlock, KeepsWhatFitsAndClearsTheRest)
{
    HeapBlock block ("abcd", 4);
    block.resize (2);
    EXPECT_EQ (textOf (block), "ab");
    block.resize (5);
    EXPECT_EQ (textOf (block), std::string ("ab\0\0\0", 5));
}
