#pragma once
#include "host/bench/Classes.h"
#include <new>
#include <string>
#include <utility>
#include <vector>

namespace bench
{

/** The box around an object: its name in the patch and the attributes common to every box. */
struct BoxRecord
{
    t_object ob{};
    std::string name;
    t_symbol* annotation = nullptr;
    t_symbol* annotation_name = nullptr;
    t_symbol* hint = nullptr;
    t_symbol* varname = nullptr;
    char background = 0;
    char hidden = 0;
    char ignoreclick = 0;
    char parameter_enable = 0;
    float patching_rect[4] = { 0, 0, 100, 22 };
};

/** Host data in front of every object's struct. */
struct alignas (16) ObjectHead
{
    ClassRecord* type = nullptr;
    BoxRecord* box = nullptr;                          // null if not in a box
    std::vector<t_object*> outlets;                    // in creation order: rightmost first
    std::vector<std::pair<t_symbol*, t_object*>> obex; // owned
    std::vector<void*> clients;                        // notified by object_notify; borrowed
    t_symbol* registeredName = nullptr;
    int references = 1; // more while a registered dictionary is retained
};

/** What the host has given out and not got back: blocks of memory, objects. Any thread. */
std::size_t numberOfBlocks();
std::size_t numberOfObjects();

/** Null for null and for anything that is not a living object. */
ObjectHead* headOf (const void* x);

/** Whether the pointer is an object allocated here and not yet freed; does not dereference it. */
bool isLive (const void* x);

t_object* allocateObject (ClassRecord& type);

/** Allocates an object of the host's own; T must begin with a t_object, or with a struct that does. */
template <typename T>
T* makeHostObject (ClassRecord& type)
{
    auto* memory = allocateObject (type);
    const auto head = *memory;
    auto* made = new (memory) T{};
    *reinterpret_cast<t_object*> (made) = head;
    return made;
}

template <typename T>
void destroyHostObject (t_object* x)
{
    reinterpret_cast<T*> (x)->~T();
}

/** The method of this name, host-only methods included; null if there is none. */
const Method* methodNamed (const void* x, t_symbol* name);

/** The name of the object's box, or "-". */
std::string boxNameOf (const void* x);

/** During its lifetime, new objects of this class are assigned this box. Main thread. */
class Creation
{
public:
    Creation (t_class* c, BoxRecord& record);
    ~Creation();
    Creation (const Creation&) = delete;
    Creation& operator= (const Creation&) = delete;

    /** Detaches the box from the objects allocated, and drops what they queued. */
    void abandon();

    static void adopt (t_object* made, ObjectHead& head);

private:
    t_class* type;
    BoxRecord& box;
    std::vector<t_object*> adopted;
    Creation* outer;
};

BoxRecord* makeBoxRecord (const std::string& name);

}
