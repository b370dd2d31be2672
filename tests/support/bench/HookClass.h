#pragma once
#include "host/api/MaxApi.h"
#include <functional>

/** The entry point of the class "test.hook": a box that runs onHook() whenever a message reaches its inlet, or whenever
    an object to which it was attached by object_attach_byptr() notifies its clients. */
t_clong hook_main (void*);

/** What all hooks do; called during the sender's call of its outlet or of object_notify. Empty by default. */
std::function<void()>& onHook();
