#pragma once
#include "host/bench/Event.h"
#include <functional>
#include <string>

namespace bench
{

/** Records what happens, from any thread, in the order in which it happens; or hands it to a listener. */
void record (Event event);
std::vector<Event> takeRecorded();
void setRecordListener (std::function<void (const Event&)> listener);

/** A row of the Max window; x may be null or freed. */
void tell (Event::Kind kind, const void* x, const std::string& text);

/** Sends a message to the clients of an object. */
void tellClients (void* x, t_symbol* message, void* data);

/** The atoms with each object replaced by the name of its box, or of its class: fit to be kept and printed. */
Atoms printable (Atoms atoms);

}
