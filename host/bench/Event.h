#pragma once
#include "host/api/MaxTypes.h"
#include <string>
#include <vector>

namespace bench
{

using Atoms = std::vector<t_atom>;

/** Something that happened on the bench, in the order in which it happened. */
struct Event
{
    enum class Kind
    {
        out,        // a message left `outlet`: `text` is its selector
        dictionary, // behind a message `dictionary NAME`: `text` is NAME, `key` and `atoms` one entry
        post,       // the Max window: `text`
        warn,
        error,
        bug,
        notify,   // a notification: `text` is its symbol
        window,   // the native window: `text` is what it did ("shown", "title Halcyra", ...)
        newFailed // a creation that gave no object
    };

    Kind kind = Kind::post;
    std::string box = "-"; // the name of the box, "-" for no object's
    std::string text;
    std::string key;
    Atoms atoms;
    int outlet = 0;           // 0 is the leftmost
    bool onMainThread = true; // the thread on which it happened
};

/** The event as the bench's language writes it, without the line feed: "r out 0 reverb gain 3." */
std::string lineOf (const Event& event);

/** An outlet message or a dictionary entry without its sender: "reverb gain 3." */
std::string messageOf (const Event& event);

/** What an atom list reads back from: "3. room \"two words\"" */
std::string textOf (const Atoms& atoms);

}
