#include "host/bench/Objects.h"
#include "host/bench/Console.h"
#include "host/bench/Dictionaries.h"
#include "host/bench/HostCalls.h"
#include "host/bench/MainQueue.h"
#include "host/bench/Scheduler.h"
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <unordered_set>

namespace bench
{

namespace
{
/** All living objects, so that a pointer can be checked without dereferencing it. */
struct LiveObjects
{
    std::mutex mutex;
    std::unordered_set<const void*> objects;
};

LiveObjects& liveObjects()
{
    static auto& objects = *new LiveObjects;
    return objects;
}

void setLive (const void* x, bool live)
{
    auto& all = liveObjects();
    const std::lock_guard<std::mutex> lock (all.mutex);
    if (live)
        all.objects.insert (x);
    else
        all.objects.erase (x);
}

ObjectHead* headBefore (void* x) { return static_cast<ObjectHead*> (x) - 1; }

Creation* currentCreation = nullptr;
}

bool isLive (const void* x)
{
    auto& all = liveObjects();
    const std::lock_guard<std::mutex> lock (all.mutex);
    return all.objects.count (x) != 0;
}

std::size_t numberOfObjects()
{
    auto& all = liveObjects();
    const std::lock_guard<std::mutex> lock (all.mutex);
    return all.objects.size();
}

ObjectHead* headOf (const void* x) { return x != nullptr && isLive (x) ? headBefore (const_cast<void*> (x)) : nullptr; }

t_object* allocateObject (ClassRecord& type)
{
    const auto size = static_cast<std::size_t> (type.visible.c_size);
    auto* memory = ::operator new (sizeof (ObjectHead) + size, std::align_val_t (alignof (ObjectHead)), std::nothrow);
    if (memory == nullptr)
        return nullptr;
    auto* head = new (memory) ObjectHead;
    head->type = &type;
    auto* object = reinterpret_cast<t_object*> (head + 1);
    std::memset (static_cast<void*> (object), 0, size);
    object->o_messlist = type.visible.c_messlist;
    object->o_magic = OB_MAGIC;
    setLive (object, true);
    return object;
}

const Method* methodNamed (const void* x, t_symbol* name)
{
    const auto* head = headOf (x);
    return head == nullptr ? nullptr : head->type->findMethod (name);
}

std::string boxNameOf (const void* x)
{
    const auto* head = headOf (x);
    return head == nullptr || head->box == nullptr ? "-" : head->box->name;
}

Creation::Creation (t_class* c, BoxRecord& record)
    : type (c), box (record), outer (std::exchange (currentCreation, this))
{}
Creation::~Creation() { currentCreation = outer; }

void Creation::adopt (t_object* made, ObjectHead& head)
{
    if (currentCreation == nullptr || head.type != recordOf (currentCreation->type) || ! MainQueue::onMainThread())
        return;
    head.box = &currentCreation->box;
    currentCreation->adopted.push_back (made);
}

void Creation::abandon()
{
    for (auto* object : adopted) {
        if (auto* head = headOf (object))
            head->box = nullptr;
        MainQueue::instance().drop (object);
        Scheduler::instance().drop (object);
    }
}

BoxRecord* makeBoxRecord (const std::string& name)
{
    static auto& type = makeHostClass ("newobj", sizeof (BoxRecord), destroyHostObject<BoxRecord>);
    auto* box = makeHostObject<BoxRecord> (type);
    box->name = name;
    for (auto* text : { &box->annotation, &box->annotation_name, &box->hint })
        *text = gensym ("");
    box->varname = gensym (name.c_str());
    return box;
}

namespace
{
t_object* patcher()
{
    static auto& type = makeHostClass ("jpatcher", sizeof (t_object), [] (t_object*) {});
    static auto* object = allocateObject (type);
    return object;
}

/** Runs the class's free method, then releases all host data of the object. */
void destroy (t_object* x, ObjectHead& head)
{
    tellClients (x, gensym ("free"), nullptr);
    if (head.type->visible.c_freefun != nullptr)
        callFree (head.type->visible.c_freefun, x);
    MainQueue::instance().drop (x);
    Scheduler::instance().drop (x);
    for (const auto& [key, value] : head.obex)
        if (std::find (head.outlets.begin(), head.outlets.end(), value) == head.outlets.end())
            object_free (value);
    for (auto* outlet : head.outlets)
        object_free (outlet);
    setLive (x, false);
    x->o_magic = 0;
    head.~ObjectHead();
    ::operator delete (&head, std::align_val_t (alignof (ObjectHead)));
}
}

}

using namespace bench;

void* object_alloc (t_class* c)
{
    if (c == nullptr)
        return nullptr;
    auto* object = allocateObject (*recordOf (c));
    if (object != nullptr)
        Creation::adopt (object, *headBefore (object));
    return object;
}

t_max_err object_free (void* x)
{
    if (x == nullptr)
        return MAX_ERR_NONE;
    auto* head = headOf (x);
    if (head == nullptr)
        return MAX_ERR_INVALID_PTR;
    if (head->references > 1) {
        --head->references;
        forgetDictionaryName (x);
        return MAX_ERR_NONE;
    }
    if (head->box == nullptr)
        destroy (static_cast<t_object*> (x), *head);
    else {
        // No event may be running on the scheduler thread while a box is freed.
        const Scheduler::Pause pause;
        destroy (static_cast<t_object*> (x), *head);
    }
    return MAX_ERR_NONE;
}

t_symbol* object_classname (void* x)
{
    const auto* head = headOf (x);
    return head == nullptr ? nullptr : head->type->visible.c_sym;
}

t_class* object_class (void* x)
{
    auto* head = headOf (x);
    return head == nullptr ? nullptr : &head->type->visible;
}

void* object_method_imp (void* x, void* selector, void* p1, void* p2, void* p3, void* p4, void* p5, void* p6, void* p7,
                         void* p8)
{
    const auto* found = methodNamed (x, static_cast<t_symbol*> (selector));
    return found == nullptr ? nullptr : callUntyped (found->function, x, { p1, p2, p3, p4, p5, p6, p7, p8 });
}

void* object_register (t_symbol*, t_symbol* name, void* x)
{
    auto* head = headOf (x);
    if (head == nullptr)
        return nullptr;
    head->registeredName = name;
    return x;
}

t_max_err object_unregister (void* x)
{
    auto* head = headOf (x);
    if (head == nullptr || head->registeredName == nullptr)
        return MAX_ERR_GENERIC;
    head->registeredName = nullptr;
    return MAX_ERR_NONE;
}

t_max_err object_attach_byptr (void* x, void* client)
{
    auto* head = headOf (x);
    if (head == nullptr || client == nullptr)
        return MAX_ERR_INVALID_PTR;
    if (std::find (head->clients.begin(), head->clients.end(), client) != head->clients.end())
        return MAX_ERR_DUPLICATE;
    head->clients.push_back (client);
    return MAX_ERR_NONE;
}

t_max_err object_detach_byptr (void* x, void* client)
{
    auto* head = headOf (x);
    if (head == nullptr)
        return MAX_ERR_INVALID_PTR;
    const auto found = std::find (head->clients.begin(), head->clients.end(), client);
    if (found == head->clients.end())
        return MAX_ERR_GENERIC;
    head->clients.erase (found);
    return MAX_ERR_NONE;
}

t_max_err object_obex_store (void* x, t_symbol* key, t_object* value)
{
    auto* head = headOf (x);
    if (head == nullptr || key == nullptr)
        return MAX_ERR_INVALID_PTR;
    for (auto& entry : head->obex)
        if (entry.first == key) {
            if (entry.second != value)
                object_free (std::exchange (entry.second, value));
            return MAX_ERR_NONE;
        }
    head->obex.emplace_back (key, value);
    return MAX_ERR_NONE;
}

t_max_err object_obex_lookup (void* x, t_symbol* key, t_object** value)
{
    auto* head = headOf (x);
    if (head == nullptr || value == nullptr)
        return MAX_ERR_INVALID_PTR;
    *value = nullptr;
    for (const auto& entry : head->obex)
        if (entry.first == key)
            *value = entry.second;
    if (*value == nullptr && head->box != nullptr && key == gensym ("#B"))
        *value = &head->box->ob;
    if (*value == nullptr && head->box != nullptr && key == gensym ("#P"))
        *value = patcher();
    return *value == nullptr ? MAX_ERR_GENERIC : MAX_ERR_NONE;
}
