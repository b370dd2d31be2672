#pragma once
#include <utility>

namespace orvanemax
{

/** To be called while an exception is handled: tells it through the object ("TEXT", "out of memory : TEXT" or
    "unknown exception"). */
void reportException (void* object) noexcept;

/** Runs a handler's body; nothing that it throws reaches the host. What the body had not done yet stays undone. */
template <typename Body>
void guarded (void* object, Body&& body) noexcept
{
    try {
        std::forward<Body> (body)();
    } catch (...) {
        reportException (object);
    }
}

}
