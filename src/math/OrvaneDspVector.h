#pragma once
#include "common/OrvaneDspAlloc.h"
#include "common/OrvaneDspException.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <new>
#include <type_traits>
#include <utility>
#include <vector>

namespace qel
{

/** The standard allocator over the library's aligned storage. */
template <typename T>
struct AlignedAllocator
{
    using value_type = T;

    AlignedAllocator() = default;
    template <typename U>
    AlignedAllocator (const AlignedAllocator<U>&) noexcept
    {}

    [[nodiscard]] T* allocate (std::size_t count)
    {
        return static_cast<T*> (qel::allocate (byteCount (count, sizeof (T))));
    }
    void deallocate (T* p, std::size_t) noexcept { qel::free (p); }

    template <typename U>
    friend bool operator== (const AlignedAllocator&, const AlignedAllocator<U>&) noexcept
    {
        return true;
    }
    template <typename U>
    friend bool operator!= (const AlignedAllocator&, const AlignedAllocator<U>&) noexcept
    {
        return false;
    }
};

/** Runs an operation that may grow storage, and turns what it raises into the library's own exceptions. */
template <typename Operation>
void guardedGrowth (const SourceLocation& where, Operation&& operation)
{
    try {
        operation();
    } catch (const Exception&) {
        throw;
    } catch (const std::bad_alloc&) {
        throw Exception ("out of memory", where);
    } catch (const std::exception& e) {
        throw Exception (String ("exception ") + e.what() + " occurred", where);
    } catch (...) {
        throw exceptions::Unknown (where);
    }
}

/** A dynamic array on aligned storage, whose growth is guarded. Elements are not bounds-tested. */
template <typename T>
class Vector
{
    static_assert (! std::is_same_v<T, bool>);
    using Storage = std::vector<T, AlignedAllocator<T>>;

public:
    using value_type = T;
    using iterator = typename Storage::iterator;
    using const_iterator = typename Storage::const_iterator;

    Vector() = default;
    explicit Vector (std::size_t size)
    {
        guardedGrowth (QEL_HERE, [&] { items.resize (size); });
    }
    Vector (std::initializer_list<T> values)
    {
        guardedGrowth (QEL_HERE, [&] { items.assign (values); });
    }
    Vector (const Vector&) = default;
    Vector (Vector&&) noexcept = default;
    Vector& operator= (const Vector&) = default;
    Vector& operator= (Vector&&) noexcept = default;
    virtual ~Vector() = default;

    [[nodiscard]] std::size_t size() const noexcept { return items.size(); }
    [[nodiscard]] std::size_t capacity() const noexcept { return items.capacity(); }
    [[nodiscard]] bool empty() const noexcept { return items.empty(); }
    [[nodiscard]] T* data() noexcept { return items.data(); }
    [[nodiscard]] const T* data() const noexcept { return items.data(); }
    [[nodiscard]] T& operator[] (std::size_t index) noexcept { return items[index]; }
    [[nodiscard]] const T& operator[] (std::size_t index) const noexcept { return items[index]; }
    [[nodiscard]] T& back() noexcept { return items.back(); }
    [[nodiscard]] const T& back() const noexcept { return items.back(); }

    iterator begin() noexcept { return items.begin(); }
    iterator end() noexcept { return items.end(); }
    const_iterator begin() const noexcept { return items.begin(); }
    const_iterator end() const noexcept { return items.end(); }

    /** Does nothing, and so cannot raise, when the array has that size already. */
    void resize (std::size_t size)
    {
        if (size != items.size())
            guardedGrowth (QEL_HERE, [&] {
                growFor (size);
                items.resize (size);
            });
    }
    /** The value may lie inside this very array. */
    void push_back (T value)
    {
        guardedGrowth (QEL_HERE, [&] {
            growFor (items.size() + 1);
            items.push_back (std::move (value));
        });
    }
    void erase (std::size_t index) { items.erase (items.begin() + static_cast<std::ptrdiff_t> (index)); }
    void clear() noexcept { items.clear(); }

    friend bool operator== (const Vector& a, const Vector& b) { return a.items == b.items; }
    friend bool operator!= (const Vector& a, const Vector& b) { return a.items != b.items; }

private:
    void growFor (std::size_t size)
    {
        if (size > items.capacity())
            items.reserve (std::max (size, items.capacity() + items.capacity() / 2));
    }

    Storage items;
};

}
