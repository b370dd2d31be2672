#pragma once
#include "host/api/MaxApi.h"

namespace orvanemax
{

/** A dictionary's keys, freed at the end of the scope. */
class DictionaryKeys
{
public:
    enum class Order
    {
        none,
        asAdded
    };

    DictionaryKeys (t_dictionary* source, Order order) noexcept
        : dictionary (source),
          failure (order == Order::asAdded ? dictionary_getkeys_ordered (source, &count, &keys)
                                           : dictionary_getkeys (source, &count, &keys))
    {}
    ~DictionaryKeys()
    {
        if (keys != nullptr)
            dictionary_freekeys (dictionary, count, keys);
    }
    DictionaryKeys (const DictionaryKeys&) = delete;
    DictionaryKeys& operator= (const DictionaryKeys&) = delete;

    [[nodiscard]] t_max_err error() const noexcept { return failure; }
    [[nodiscard]] t_clong size() const noexcept { return count; }
    [[nodiscard]] t_symbol* const* begin() const noexcept { return keys; }
    [[nodiscard]] t_symbol* const* end() const noexcept { return keys + count; }

private:
    t_dictionary* dictionary;
    t_clong count = 0;
    t_symbol** keys = nullptr;
    t_max_err failure; // last: its initialiser fills the two above
};

}
