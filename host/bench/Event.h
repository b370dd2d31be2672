#pragma once
#include "host/api/MaxTypes.h"
#include <string>
#include <vector>

namespace bench
{

using Atoms = std::vector<t_atom>;

/** Something that happened on the bench. */
struct Event
{
    enum class Kind
    {
        out,        // a message sent from `outlet`: `text` is its selector
        dictionary, // after a message `dictionary NAME`: `text` is NAME, `key` and `atoms` one entry
        post,       // to the Max console: `text`
        warn,
        error,
        bug,
        notify,   // a notification: `text` is its symbol
        window,   // native window: `text` is what it did ("shown", "title Halcyra", ...)
        newFailed // a creation that returned no object
    };

    Kind kind = Kind::post;
    std::string box = "-"; // name of the box; "-" for none
    std::string text;
    std::string key;
    Atoms atoms;
    int outlet = 0;           // 0 is the leftmost
    bool onMainThread = true; // the thread on which it happened
};

/** The event in the bench's language, without a line feed: "r out 0 reverb gain 3." */
std::string lineOf (const Event& event);

/** An outlet message or a dictionary entry without its sender: "reverb gain 3." */
std::string messageOf (const Event& event);

/** Text that parses back to the same atoms: "3. room \"two words\"" */
std::string textOf (const Atoms& atoms);

}
