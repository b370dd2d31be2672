#pragma once
#include "host/bench/Objects.h"

namespace bench
{

struct Outlet
{
    t_object ob{};
    t_object* owner = nullptr;
    std::vector<t_object*> receivers; // in order of connection
};

/** An object's outlet by number, 0 the leftmost; null if there is none. */
Outlet* outletAt (const t_object* x, int number);

void addCord (Outlet& outlet, t_object* receiver);
bool removeCord (Outlet& outlet, const t_object* receiver);

/** Delivers a message to an object's inlet: to a method, otherwise an attribute's setter, otherwise getNAME, otherwise
    the method "anything"; failing all, logs "doesn't understand". On the caller's thread. */
void deliver (t_object* x, t_symbol* selector, std::vector<t_atom> atoms);

}
