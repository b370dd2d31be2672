#pragma once
#include "osc/OrvaneDspOscAddress.h"

#include <cstddef>
#include <list>

namespace qel
{

/** Parsed pattern addresses by their text: a hash table that never forgets, so that a handler's fixed addresses cost
    one hash a comparison. It grows with each new text that it is asked for, and is meant for texts of programs, not
    of users. Message thread only. */
class OscAddressCache
{
public:
    OscAddressCache();

    /** The one of the process. */
    static OscAddressCache& shared();

    /** The address parsed from a text, on its first use. It stays where it is for good.
        Raises what the address raises, and then keeps nothing. */
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

    /** The nodes of a bucket stand side by side in the list; with none, both ends are the list's end. */
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
