#pragma once
#include "host/bench/Classes.h"
#include <new>
#include <string>
#include <utility>
#include <vector>

namespace bench
{

/** The box around an object: its name in the patch and the attributes that every box has, whatever its class. */
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

/** What the host keeps in front of every object's record. */
struct alignas (16) ObjectHead
{
    ClassRecord* type = nullptr;
    BoxRecord* box = nullptr;                          // null for what stands in no box
    std::vector<t_object*> outlets;                    // in order of creation: the rightmost first
    std::vector<std::pair<t_symbol*, t_object*>> obex; // owned
    std::vector<void*> clients;                        // told by object_notify; borrowed
    t_symbol* registeredName = nullptr;
    int references = 1; // more while a registered dictionary is retained
};

/** What the host has given out and not got back: blocks of memory, objects. Any thread. */
std::size_t numberOfBlocks();
std::size_t numberOfObjects();

/** Null for null and for what is no living object. */
ObjectHead* headOf (const void* x);

/** True while the pointer is an object that was allocated here and not freed; reads nothing through it. */
bool isLive (const void* x);

t_object* allocateObject (ClassRecord& type);

/** An object of the host's own: T begins with its t_object, or with a struct that does. */
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

/** The method of this name, one for the host only included; null if there is none. */
const Method* methodNamed (const void* x, t_symbol* name);

/** The name of the object's box, "-" without one. */
std::string boxNameOf (const void* x);

/** While it stands, objects of this class get this box when they are allocated. Main thread. */
class Creation
{
public:
    Creation (t_class* c, BoxRecord& record);
    ~Creation();
    Creation (const Creation&) = delete;
    Creation& operator= (const Creation&) = delete;

    /** Takes the box from whatever was allocated and drops what it queued. */
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
