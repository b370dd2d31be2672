#include "host/bench/Console.h"
#include "host/bench/HostCalls.h"
#include "host/bench/MainQueue.h"
#include "host/bench/Objects.h"
#include <cstdarg>
#include <cstdio>
#include <mutex>

namespace bench
{

namespace
{
struct Record
{
    std::recursive_mutex mutex;
    std::vector<Event> events;
    std::function<void (const Event&)> listener;
};

Record& theRecord()
{
    static auto& all = *new Record;
    return all;
}

MAX_FORMAT (1, 0)
std::string formatted (const char* format, va_list arguments)
{
    va_list again;
    va_copy (again, arguments);
    const auto length = std::vsnprintf (nullptr, 0, format, arguments);
    std::string text (static_cast<std::size_t> (length < 0 ? 0 : length), ' ');
    std::vsnprintf (text.data(), text.size() + 1, format, again);
    va_end (again);
    return text;
}
}

void record (Event event)
{
    event.onMainThread = MainQueue::onMainThread();
    auto& all = theRecord();
    const std::lock_guard<std::recursive_mutex> lock (all.mutex);
    if (all.listener)
        all.listener (event);
    else
        all.events.push_back (std::move (event));
}

std::vector<Event> takeRecorded()
{
    auto& all = theRecord();
    const std::lock_guard<std::recursive_mutex> lock (all.mutex);
    return std::exchange (all.events, {});
}

void setRecordListener (std::function<void (const Event&)> listener)
{
    auto& all = theRecord();
    const std::lock_guard<std::recursive_mutex> lock (all.mutex);
    all.listener = std::move (listener);
}

void tell (Event::Kind kind, const void* x, const std::string& text)
{
    Event event;
    event.kind = kind;
    event.box = boxNameOf (x);
    event.text = text;
    record (std::move (event));
}

void tellClients (void* x, t_symbol* message, void* data)
{
    const auto* head = headOf (x);
    if (head == nullptr || head->clients.empty())
        return;
    auto* name = head->registeredName != nullptr ? head->registeredName : gensym (boxNameOf (x).c_str());
    const auto clients = head->clients; // a client may detach while it is notified
    for (auto* client : clients)
        if (const auto* notify = methodNamed (client, gensym ("notify")))
            callNotify (notify->function, client, name, message, x, data);
}

Atoms printable (Atoms atoms)
{
    for (auto& atom : atoms)
        if (atom.a_type == A_OBJ) {
            auto* object = atom_getobj (&atom);
            const auto box = boxNameOf (object);
            auto* className = object_classname (object);
            atom_setsym (&atom, box != "-"             ? gensym (box.c_str())
                                : className != nullptr ? className
                                                       : gensym ("object"));
        }
    return atoms;
}

}

using namespace bench;

// The four differ only in kind.
#define TELL_FORMATTED(kind, x, format)                                                                                \
    if (format == nullptr)                                                                                             \
        return;                                                                                                        \
    va_list arguments;                                                                                                 \
    va_start (arguments, format);                                                                                      \
    const auto text = formatted (format, arguments);                                                                   \
    va_end (arguments);                                                                                                \
    tell (kind, x, text)

void post (const char* format, ...) { TELL_FORMATTED (Event::Kind::post, nullptr, format); }
void object_post (t_object* x, const char* format, ...) { TELL_FORMATTED (Event::Kind::post, x, format); }
void object_warn (t_object* x, const char* format, ...) { TELL_FORMATTED (Event::Kind::warn, x, format); }
void object_error (t_object* x, const char* format, ...) { TELL_FORMATTED (Event::Kind::error, x, format); }
void object_bug (t_object* x, const char* format, ...) { TELL_FORMATTED (Event::Kind::bug, x, format); }

t_max_err object_notify (void* x, t_symbol* message, void* data)
{
    const auto* head = headOf (x);
    if (head == nullptr && x != nullptr)
        object_bug (nullptr, "object_notify for an object that was freed");
    if (head == nullptr || message == nullptr)
        return MAX_ERR_INVALID_PTR;
    if (head->box == nullptr && head->registeredName == nullptr)
        return MAX_ERR_NONE;
    tell (Event::Kind::notify, x, message->s_name);
    tellClients (x, message, data);
    return MAX_ERR_NONE;
}
