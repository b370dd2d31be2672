#pragma once
#include "host/api/MaxApi.h"
#include <functional>

/** Entry point of the class "test.hook": a box that runs onHook() whenever a message reaches its inlet, or when an
    object that it is attached to by object_attach_byptr() notifies its clients. */
t_clong hook_main (void*);

/** Run by all hooks, during the sender's outlet call or object_notify. Empty by default. */
std::function<void()>& onHook();

/** Run by all hooks with the attribute whose change is notified. Empty by default. */
std::function<void (const void* attribute)>& onTouch();
