#pragma once
#include "host/bench/Event.h"
#include <functional>
#include <string>

namespace bench
{

/** Records an event in order, or passes it to a listener. Any thread. */
void record (Event event);
std::vector<Event> takeRecorded();
void setRecordListener (std::function<void (const Event&)> listener);

/** Writes a row to the Max console; x may be null or freed. */
void tell (Event::Kind kind, const void* x, const std::string& text);

/** Notifies an object's clients. */
void tellClients (void* x, t_symbol* message, void* data);

/** Replaces each object by the name of its box or class, so that the atoms can be stored and printed. */
Atoms printable (Atoms atoms);

}
