#pragma once
#include "common/OrvaneDspAlloc.h"
#include "common/OrvaneDspGuard.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <initializer_list>
#include <type_traits>
#include <utility>
#include <vector>

namespace qel
{

/** Standard allocator on the library's aligned storage. */
template <typename T>
struct AlignedAllocator
{
    static_assert (alignof (T) <= arrayAlignment);
    using value_type = T;

    AlignedAllocator() = default;
    template <typename U>
    AlignedAllocator (const AlignedAllocator<U>&) noexcept
    {}

    [[nodiscard]] T* allocate (std::size_t count)
    {
        // The elements may be pointers. NOLINTNEXTLINE(bugprone-sizeof-expression)
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

/** A dynamic array on 16-byte aligned storage with guarded growth (see guardedGrowth). Element access is not
    bounds-checked. Operations that throw leave the array unchanged. */
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
    /** Value-initialised elements; numbers are 0. */
    explicit Vector (std::size_t size)
    {
        grow ([&] { items.resize (size); });
    }
    Vector (std::initializer_list<T> values)
    {
        grow ([&] { items.assign (values); });
    }
    Vector (const Vector& other)
    {
        grow ([&] { items = other.items; });
    }
    Vector (Vector&&) noexcept = default;
    Vector& operator= (const Vector& other)
    {
        Vector copy (other);
        items.swap (copy.items);
        return *this;
    }
    Vector& operator= (Vector&&) noexcept = default;
    virtual ~Vector() = default;

    [[nodiscard]] std::size_t size() const noexcept { return items.size(); }
    [[nodiscard]] std::size_t capacity() const noexcept { return items.capacity(); }
    [[nodiscard]] bool empty() const noexcept { return items.empty(); }
    [[nodiscard]] T* data() noexcept { return items.data(); }
    [[nodiscard]] const T* data() const noexcept { return items.data(); }
    [[nodiscard]] T& operator[] (std::size_t index) noexcept { return items[index]; }
    [[nodiscard]] const T& operator[] (std::size_t index) const noexcept { return items[index]; }
    [[nodiscard]] T& front() noexcept { return items.front(); }
    [[nodiscard]] const T& front() const noexcept { return items.front(); }
    [[nodiscard]] T& back() noexcept { return items.back(); }
    [[nodiscard]] const T& back() const noexcept { return items.back(); }

    iterator begin() noexcept { return items.begin(); }
    iterator end() noexcept { return items.end(); }
    const_iterator begin() const noexcept { return items.begin(); }
    const_iterator end() const noexcept { return items.end(); }

    /** Does nothing, and so cannot throw, if the array already has that size. */
    void resize (std::size_t newSize)
    {
        if (newSize != size())
            grow ([&] {
                reserveFor (newSize);
                items.resize (newSize);
            });
    }

    /** The value may lie inside this array: its index is taken before the array moves. */
    void push_back (const T& value)
    {
        if (size() < capacity() || ! isInside (value)) {
            grow ([&] {
                reserveFor (size() + 1);
                items.push_back (value);
            });
            return;
        }
        const auto index = static_cast<std::size_t> (&value - data());
        grow ([&] {
            reserveFor (size() + 1);
            items.push_back (items[index]);
        });
    }
    /** The value must not lie inside this array. */
    void push_back (T&& value)
    {
        grow ([&] {
            reserveFor (size() + 1);
            items.push_back (std::move (value));
        });
    }

    void erase (std::size_t index) { items.erase (items.begin() + static_cast<std::ptrdiff_t> (index)); }
    void clear() noexcept { items.clear(); }

    friend bool operator== (const Vector& a, const Vector& b) { return a.items == b.items; }
    friend bool operator!= (const Vector& a, const Vector& b) { return a.items != b.items; }

private:
    template <typename Operation>
    static void grow (Operation&& operation)
    {
        guardedGrowth (QEL_HERE, GuardText::whatOccurred, std::forward<Operation> (operation));
    }

    /** Grows by half, or to the needed size if that is larger. */
    void reserveFor (std::size_t needed)
    {
        if (needed > capacity())
            items.reserve (std::max (needed, capacity() + capacity() / 2));
    }

    [[nodiscard]] bool isInside (const T& value) const noexcept
    {
        const std::less<const T*> before;
        return ! before (&value, data()) && before (&value, data() + size());
    }

    Storage items;
};

}
