#pragma once
#include <mutex>

namespace halcyra
{

/** Held for as long as the record's per-source arrays are written or read: they are written on the main thread, and a
    patch may ask for them on any. One for all objects, since nobody holds it for longer than a copy takes. */
inline std::mutex& perSourceStores() noexcept
{
    static std::mutex mutex;
    return mutex;
}

}
