#include "files/OrvaneDspRandom48.h"

#include <gtest/gtest.h>

#include <set>

namespace
{

TEST (Random48, FollowsItsRecurrence)
{
    qel::Random48 fromZero (0);
    EXPECT_EQ (fromZero.next(), 0U) << "11, of which the low 16 bits are dropped";
    EXPECT_EQ (fromZero.next(), 4232237U) << "(25214903917 * 11 + 11) / 65536";
    qel::Random48 beyondTheMask (std::uint64_t{ 1 } << 48U);
    EXPECT_EQ (beyondTheMask.next(), 0U) << "bits above 48 count for nothing";
}

TEST (Random48, TheSharedOneGoesOn)
{
    std::set<std::uint32_t> drawn;
    for (int i = 0; i < 1000; ++i)
        drawn.insert (qel::Random48::shared().next());
    EXPECT_GT (drawn.size(), 990U);
}

}
