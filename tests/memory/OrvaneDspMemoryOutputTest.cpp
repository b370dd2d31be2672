#include "memory/OrvaneDspMemoryOutput.h"
#include "common/OrvaneDspException.h"

#include <gtest/gtest.h>

#include <cstdint>

using qel::MemoryOutput;

TEST (MemoryOutput, TakesEveryKindOfText)
{
    MemoryOutput out (0);
    out << "<a>" << qel::String ("b") << 'c';
    out.write ("d\0e", 3);
    out.write (static_cast<const char*> (nullptr));
    out.writeRepeated (' ', 3);
    out.writeRepeated ('x', 0);
    EXPECT_EQ (out.toString().str(), std::string ("<a>bcd\0e   ", 11));
}

TEST (MemoryOutput, OverwritesFromAPositionAndKeepsItsHighWater)
{
    MemoryOutput out;
    out << "hello world";
    out.setPosition (6);
    out << "W";
    EXPECT_EQ (out.toString(), "hello World");
    EXPECT_EQ (out.position(), 7u);
    out.setPosition (99);
    EXPECT_EQ (out.position(), 11u);
    out.reset();
    EXPECT_EQ (out.size(), 0u);
}

TEST (MemoryOutput, GrowsWhenItsPositionReachesTheCapacity)
{
    MemoryOutput out (64);
    out.writeRepeated ('.', 63);
    EXPECT_EQ (out.capacity(), 64u);
    out << '.';
    EXPECT_EQ (out.capacity(), 128u) << "64 + 32 + 32 rounded down to 32s";

    out.reset();
    out.writeRepeated ('.', 10'000'000);
    EXPECT_EQ (out.capacity(), (10'000'000u + 32 + 1'048'576) / 32 * 32) << "never more than a mebibyte ahead";
}

TEST (MemoryOutput, RefusesWhatNoMemoryCouldHold)
{
    MemoryOutput out;
    out << "kept";
    testing::internal::CaptureStderr();
    EXPECT_THROW (out.writeRepeated ('.', SIZE_MAX - 2), qel::Exception);
    testing::internal::GetCapturedStderr();
    EXPECT_EQ (out.toString(), "kept");
}
