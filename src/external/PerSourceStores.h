#pragma once
#include <mutex>

namespace halcyra
{

/** Locks the struct's per-source arrays: written on the main thread, read by a patch on any. One mutex for all objects,
    because it is held only for the length of a copy. */
inline std::mutex& perSourceStores() noexcept
{
    static std::mutex mutex;
    return mutex;
}

}
