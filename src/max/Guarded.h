#pragma once
#include "max/ObjectCall.h"

#include <utility>

namespace orvanemax
{

/** To be called while an exception is handled: reports it through the object ("TEXT", "out of memory : TEXT" or
    "unknown exception"), or through none if the object is gone. */
void reportException (void* object) noexcept;

/** Runs a body for the object as a call under way; nothing that it throws goes further. What the body had not done yet
    stays undone. HostFunction is the same for whole functions. */
template <typename Body>
void guarded (void* object, Body&& body) noexcept
{
    const ObjectCall call (object);
    try {
        std::forward<Body> (body)();
    } catch (...) {
        reportException (object);
    }
}

}
