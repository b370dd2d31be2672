#include "osc/OrvaneDspOscAddressCache.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using qel::OscAddressCache;

TEST (OscAddressCache, ParsesATextOnceAndKeepsItInItsPlace)
{
    OscAddressCache cache;
    std::vector<const qel::OscAddress*> found;
    for (int round = 0; round < 2; ++round)
        for (int i = 0; i < 2'000; ++i) {
            const auto text = "/source/" + std::to_string (i);
            const auto& address = cache.find (text);
            ASSERT_EQ (address.text(), text);
            if (round == 0)
                found.push_back (&address);
            else
                ASSERT_EQ (found[static_cast<std::size_t> (i)], &address);
        }
    EXPECT_EQ (cache.size(), 2'000u);
    EXPECT_EQ (&OscAddressCache::shared().find ("/gain"), &OscAddressCache::shared().find ("/gain"));
}

TEST (OscAddressCache, GrowsByEightAndThenByTwoSoThatBucketsHoldOneEntryOnAverage)
{
    OscAddressCache cache;
    for (std::size_t size = 1; size <= 1'025; ++size) {
        EXPECT_EQ (cache.find ("/" + std::to_string (size)).parts().size(), 1u);
        const std::size_t expected = size <= 8       ? 8
                                     : size <= 64    ? 64
                                     : size <= 512   ? 512
                                     : size <= 1'024 ? 1'024
                                                     : 2'048;
        ASSERT_EQ (cache.numBuckets(), expected) << size;
    }
}

TEST (OscAddressCache, KeepsNothingOfARefusedText)
{
    OscAddressCache cache;
    for (int i = 0; i < 20; ++i)
        EXPECT_THROW ((void)cache.find ("/a b"), qel::Exception);
    EXPECT_EQ (cache.size(), 0u);
    EXPECT_EQ (cache.numBuckets(), 8u);
    EXPECT_EQ (cache.find ("/a/b/").text(), "/a/b");
}
