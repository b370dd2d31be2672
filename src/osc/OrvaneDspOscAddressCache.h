#pragma once
#include "osc/OrvaneDspOscAddress.h"

#include <cstddef>
#include <list>

namespace qel
{

/** Caches parsed pattern addresses by their text, so that comparing with a handler's fixed addresses costs one hash.
    Entries are never evicted, so look up only texts fixed in the program, never user input. Message thread only. */
class OscAddressCache
{
public:
    OscAddressCache();

    /** The process-wide cache. */
    static OscAddressCache& shared();

    /** Returns the address for a text, parsed on first use; the reference stays valid for the life of the cache.
        Throws as the address does, and then stores nothing. */
    [[nodiscard]] const OscAddress& find (const String& text);

    [[nodiscard]] std::size_t size() const noexcept { return nodes.size(); }
    [[nodiscard]] std::size_t numBuckets() const noexcept { return buckets.size(); }

private:
    struct Node
    {
        String text;
        OscAddress address;
    };
    using Nodes = std::list<Node>;

    /** The nodes of a bucket are adjacent in the list; for an empty bucket both ends are the list's end. */
    struct Bucket
    {
        Nodes::iterator first, last;
    };

    [[nodiscard]] Bucket& bucketOf (const String& text) noexcept;
    void putIn (Nodes& from, Nodes::iterator node);
    void grow();

    Nodes nodes;
    Vector<Bucket> buckets;
};

}
