#pragma once
#include <cstddef>

namespace orvanemax
{

/** A static table of rows, read by registration, dispatch, documentation and tests. */
template <typename Row>
class Rows
{
public:
    template <std::size_t size>
    constexpr Rows (const Row (&table)[size]) noexcept : first (table), count (size)
    {}
    constexpr Rows (const Row* firstRow, std::size_t numberOfRows) noexcept : first (firstRow), count (numberOfRows) {}
    constexpr Rows() noexcept = default;

    [[nodiscard]] constexpr const Row* begin() const noexcept { return first; }
    [[nodiscard]] constexpr const Row* end() const noexcept { return first + count; }
    [[nodiscard]] constexpr std::size_t size() const noexcept { return count; }

private:
    const Row* first = nullptr;
    std::size_t count = 0;
};

}
