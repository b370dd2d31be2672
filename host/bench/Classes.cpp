#include "host/bench/Classes.h"
#include "host/bench/Attributes.h"
#include <cstdarg>
#include <mutex>

namespace bench
{

const Method* ClassRecord::findMethod (t_symbol* name) const
{
    const auto found = methodIndex.find (name);
    return found == methodIndex.end() ? nullptr : &methods[found->second];
}

Attribute* ClassRecord::findAttribute (t_symbol* name) const
{
    const auto found = attributeIndex.find (name);
    return found == attributeIndex.end() ? nullptr : found->second;
}

void ClassRecord::add (Method added)
{
    const auto [place, isNew] = methodIndex.try_emplace (added.name, methods.size());
    if (isNew)
        methods.push_back (std::move (added));
    else
        methods[place->second] = std::move (added);
}

void ClassRecord::add (Attribute* added)
{
    const auto [place, isNew] = attributeIndex.try_emplace (added->visible.name, added);
    if (isNew)
        attributes.push_back (added);
    else {
        for (auto*& attribute : attributes)
            if (attribute == place->second)
                attribute = added;
        object_free (place->second);
        place->second = added;
    }
}

ClassRecord* recordOf (t_class* c) { return reinterpret_cast<ClassRecord*> (c); }

namespace
{
/** All classes of the process. */
struct ClassTable
{
    std::mutex mutex;
    std::deque<ClassRecord> classes;
    std::unordered_map<t_symbol*, std::unordered_map<t_symbol*, t_class*>> byNameSpace;
};

ClassTable& classTable()
{
    static auto& table = *new ClassTable;
    return table;
}

ClassRecord& makeClass (const char* name, t_ptr_size size)
{
    auto& table = classTable();
    const std::lock_guard<std::mutex> lock (table.mutex);
    auto& record = table.classes.emplace_back();
    record.visible.c_sym = gensym (name);
    record.visible.c_filename = record.visible.c_sym;
    record.visible.c_size = size;
    record.visible.c_messlist = &record.list[1];
    record.list[0].m_sym = reinterpret_cast<t_symbol*> (&record.visible);
    return record;
}

/** Reads the rest of a zero-terminated list of argument types; `type` is the first. */
std::vector<short> readTypes (int type, va_list rest)
{
    std::vector<short> types;
    while (type != A_NOTHING && types.size() < MAX_TYPED_ARGUMENTS) {
        types.push_back (static_cast<short> (type));
        type = va_arg (rest, int);
    }
    return types;
}
}

ClassRecord& makeHostClass (const char* name, std::size_t size, void (*mfree) (t_object*))
{
    auto& record = makeClass (name, size);
    record.visible.c_freefun = max_method (mfree);
    return record;
}

}

t_class* class_new (const char* name, method mnew, method mfree, t_clong size, method menu, int, ...)
{
    // `new` takes A_GIMME in every class with a box; for other signatures call `mnew` directly.
    if (name == nullptr || size < static_cast<t_clong> (sizeof (t_object)))
        return nullptr;
    auto& record = bench::makeClass (name, static_cast<t_ptr_size> (size));
    record.visible.c_newmess = mnew;
    record.visible.c_freefun = mfree;
    record.visible.c_menufun = menu;
    return &record.visible;
}

t_max_err class_addmethod (t_class* c, method function, const char* name, ...)
{
    if (c == nullptr || function == nullptr || name == nullptr)
        return MAX_ERR_INVALID_PTR;
    va_list types;
    va_start (types, name);
    const auto first = va_arg (types, int);
    bench::recordOf (c)->add (bench::Method{ gensym (name), function, bench::readTypes (first, types) });
    va_end (types);
    return MAX_ERR_NONE;
}

t_max_err class_addattr (t_class* c, t_object* attribute)
{
    if (c == nullptr || attribute == nullptr)
        return MAX_ERR_INVALID_PTR;
    bench::recordOf (c)->add (reinterpret_cast<bench::Attribute*> (attribute));
    return MAX_ERR_NONE;
}

t_max_err class_register (t_symbol* name_space, t_class* c)
{
    if (name_space == nullptr || c == nullptr)
        return MAX_ERR_INVALID_PTR;
    auto& table = bench::classTable();
    const std::lock_guard<std::mutex> lock (table.mutex);
    table.byNameSpace[name_space][c->c_sym] = c;
    c->c_flags |= CLASS_FLAG_REGISTERED;
    if (name_space == CLASS_BOX)
        c->c_flags |= CLASS_FLAG_BOX;
    c->c_messcount = static_cast<t_clong> (bench::recordOf (c)->methods.size());
    return MAX_ERR_NONE;
}

t_class* class_findbyname (t_symbol* name_space, t_symbol* name)
{
    auto& table = bench::classTable();
    const std::lock_guard<std::mutex> lock (table.mutex);
    const auto space = table.byNameSpace.find (name_space);
    if (space == table.byNameSpace.end())
        return nullptr;
    const auto found = space->second.find (name);
    return found == space->second.end() ? nullptr : found->second;
}

void* class_attr_get (t_class* c, t_symbol* name)
{
    return c == nullptr ? nullptr : bench::recordOf (c)->findAttribute (name);
}
