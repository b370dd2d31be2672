#pragma once
#include "host/bench/Objects.h"

namespace bench
{

struct Outlet
{
    t_object ob{};
    t_object* owner = nullptr;
    std::vector<t_object*> receivers; // at the far ends of the cords, in order of connection
};

/** The outlet of an object by its number, 0 the leftmost; null if there is none. */
Outlet* outletAt (const t_object* x, int number);

void addCord (Outlet& outlet, t_object* receiver);
bool removeCord (Outlet& outlet, const t_object* receiver);

/** Delivers a message to the inlet of an object: a method if the class has one, else an attribute's setter, else
    getNAME's answer, else the method "anything", else the row "doesn't understand". On the caller's thread. */
void deliver (t_object* x, t_symbol* selector, std::vector<t_atom> atoms);

}
