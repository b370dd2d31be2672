#include "osc/OrvaneDspOscAddressCache.h"

#include <cstdint>
#include <iterator>

namespace qel
{

namespace
{

constexpr std::size_t firstNumBuckets = 8;
constexpr std::size_t fastGrowthLimit = 512;

/** 64-bit FNV-1a. */
std::uint64_t hash (const String& text) noexcept
{
    std::uint64_t result = 0xcbf29ce484222325;
    for (const char c : text.str())
        result = (result ^ static_cast<unsigned char> (c)) * 0x100000001b3;
    return result;
}

}

OscAddressCache::OscAddressCache() : buckets (firstNumBuckets)
{
    for (auto& bucket : buckets)
        bucket = { nodes.end(), nodes.end() };
}

OscAddressCache& OscAddressCache::shared()
{
    static OscAddressCache cache;
    return cache;
}

const OscAddress& OscAddressCache::find (const String& text)
{
    const auto& bucket = bucketOf (text);
    if (bucket.first != nodes.end())
        for (auto node = bucket.first; node != std::next (bucket.last); ++node)
            if (node->text == text)
                return node->address;

    Nodes fresh;
    fresh.push_back ({ text, OscAddress (text) });
    const auto node = fresh.begin();
    if (nodes.size() + 1 > buckets.size())
        grow();
    putIn (fresh, node);
    return node->address;
}

OscAddressCache::Bucket& OscAddressCache::bucketOf (const String& text) noexcept
{
    return buckets[hash (text) % buckets.size()];
}

/** Moves a node from a list, possibly the table's own, to the end of its bucket. */
void OscAddressCache::putIn (Nodes& from, Nodes::iterator node)
{
    auto& bucket = bucketOf (node->text);
    const bool first = bucket.first == nodes.end();
    nodes.splice (first ? nodes.end() : std::next (bucket.last), from, node);
    bucket.last = node;
    if (first)
        bucket.first = node;
}

void OscAddressCache::grow()
{
    const auto wanted = buckets.size() * (buckets.size() < fastGrowthLimit ? 8 : 2);
    Vector<Bucket> larger (wanted);
    for (auto& bucket : larger)
        bucket = { nodes.end(), nodes.end() };
    buckets = std::move (larger);

    Nodes all;
    all.swap (nodes);
    while (! all.empty())
        putIn (all, all.begin());
}

}
