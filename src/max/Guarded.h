#pragma once
#include "max/ObjectCall.h"

#include <utility>

namespace orvanemax
{

/** Call inside a catch block: reports the exception through the object ("TEXT", "out of memory : TEXT" or
    "unknown exception"), or without one if the object is gone. */
void reportException (void* object) noexcept;

/** Runs a body as a call in progress on the object, and catches whatever it throws; the rest of the body is skipped.
    HostFunction does the same for whole functions. */
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
