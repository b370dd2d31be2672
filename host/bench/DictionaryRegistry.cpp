#include "host/bench/Dictionaries.h"
#include <mutex>
#include <unordered_map>

namespace bench
{

namespace
{
/** Process-wide map from names to dictionaries. */
struct Registry
{
    std::mutex mutex;
    std::unordered_map<t_symbol*, t_dictionary*> byName;
};

Registry& registry()
{
    static auto& names = *new Registry;
    return names;
}
}

t_dictionary* registeredDictionary (t_symbol* name)
{
    auto& names = registry();
    const std::lock_guard<std::mutex> lock (names.mutex);
    const auto found = names.byName.find (name);
    return found == names.byName.end() ? nullptr : found->second;
}

void forgetDictionaryName (const void* d)
{
    auto& names = registry();
    const std::lock_guard<std::mutex> lock (names.mutex);
    for (auto entry = names.byName.begin(); entry != names.byName.end(); ++entry)
        if (entry->second == d) {
            names.byName.erase (entry);
            return;
        }
}

}

using namespace bench;

t_dictionary* dictobj_register (t_dictionary* d, t_symbol** name)
{
    if (dictionaryOf (d) == nullptr || name == nullptr)
        return nullptr;
    if (*name == nullptr)
        *name = symbol_unique();
    if (auto* bearer = registeredDictionary (*name)) {
        if (bearer != d)
            object_free (d);
        return bearer;
    }
    forgetDictionaryName (d);
    auto& names = registry();
    const std::lock_guard<std::mutex> lock (names.mutex);
    names.byName[*name] = d;
    return d;
}

t_max_err dictobj_unregister (t_dictionary* d)
{
    if (dictionaryOf (d) == nullptr)
        return MAX_ERR_INVALID_PTR;
    forgetDictionaryName (d);
    return MAX_ERR_NONE;
}

t_dictionary* dictobj_findregistered_retain (t_symbol* name)
{
    auto* found = registeredDictionary (name);
    if (auto* head = headOf (found))
        ++head->references;
    return found;
}

t_max_err dictobj_release (t_dictionary* d)
{
    auto* head = headOf (d);
    if (head == nullptr)
        return MAX_ERR_INVALID_PTR;
    if (head->references > 1)
        --head->references;
    else
        object_free (d);
    return MAX_ERR_NONE;
}
