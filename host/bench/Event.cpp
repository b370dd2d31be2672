#include "host/bench/Event.h"
#include "host/api/MaxApi.h"
#include "host/bench/Words.h"

namespace bench
{

namespace
{
std::string textOfAtom (const t_atom& atom)
{
    switch (atom.a_type) {
    case A_LONG:
        return std::to_string (atom.a_w.w_long);
    case A_FLOAT:
        return bench::textOf (static_cast<float> (atom.a_w.w_float));
    case A_SYM:
        return quotedIfNeeded (atom.a_w.w_sym->s_name);
    case A_SEMI:
        return ";";
    case A_COMMA:
        return ",";
    default:
        return "<" + std::to_string (atom.a_type) + ">";
    }
}

const char* kindOf (Event::Kind kind)
{
    switch (kind) {
    case Event::Kind::post:
        return "post";
    case Event::Kind::warn:
        return "warn";
    case Event::Kind::error:
        return "error";
    case Event::Kind::bug:
        return "bug";
    case Event::Kind::notify:
        return "notify";
    case Event::Kind::window:
        return "window";
    default:
        return "";
    }
}

std::string joined (const std::string& head, const Atoms& atoms)
{
    return atoms.empty() ? head : head + " " + textOf (atoms);
}
}

std::string textOf (const Atoms& atoms)
{
    std::string text;
    for (const auto& atom : atoms)
        text += (text.empty() ? "" : " ") + textOfAtom (atom);
    return text;
}

std::string messageOf (const Event& event)
{
    const auto& head = event.kind == Event::Kind::dictionary ? event.key : event.text;
    return joined (quotedIfNeeded (head), event.atoms);
}

std::string lineOf (const Event& event)
{
    switch (event.kind) {
    case Event::Kind::out:
        return event.box + " out " + std::to_string (event.outlet) + " " + messageOf (event);
    case Event::Kind::dictionary:
        return event.box + " dict " + quotedIfNeeded (event.text) + " " + messageOf (event);
    case Event::Kind::newFailed:
        return event.box + " new failed";
    default:
        return event.box + " " + kindOf (event.kind) + " " + onOneLine (event.text);
    }
}

}
