#include "host/bench/Inspect.h"
#include "host/bench/patchbench/Commands.h"

namespace patchbench
{

namespace
{
using Words = std::vector<bench::Word>;

/** "NAME KIND TEXT", without a trailing blank if the text is empty. */
void printAnswer (const std::string& head, const std::string& text)
{
    Session::print (text.empty() ? head : head + " " + text);
}

void printAnswer (const std::string& head, const bench::Atoms& atoms) { printAnswer (head, bench::textOf (atoms)); }

[[noreturn]] void noAttribute (const Words& words)
{
    throw CommandError ("\"" + words[1].text + "\" has no attribute \"" + words[2].text + "\"");
}

void attribute (Session& session, const Words& words)
{
    const auto value = bench::attributeOf (session.box (words[1].text), words[2].text);
    if (! value)
        noAttribute (words);
    printAnswer (words[1].text + " attr " + words[2].text, *value);
}

void attributes (Session& session, const Words& words)
{
    const auto& box = session.box (words[1].text);
    for (const auto& name : bench::visibleAttributes (box))
        printAnswer (box.name + " attr " + name, bench::attributeOf (box, name).value_or (bench::Atoms{}));
}

void property (Session& session, const Words& words)
{
    const auto value = bench::propertyOf (session.box (words[1].text), words[2].text, words[3].text);
    if (! value)
        noAttribute (words);
    printAnswer (words[1].text + " property " + words[2].text + " " + words[3].text, *value);
}

void methods (Session& session, const Words& words)
{
    const auto& box = session.box (words[1].text);
    for (const auto& row : bench::methodsOf (box)) {
        auto line = box.name + " method " + row.message;
        for (const auto& kind : row.kinds)
            line += " " + kind;
        Session::print (line);
    }
}

void assist (Session& session, const Words& words)
{
    const auto& box = session.box (words[1].text);
    const bool inlet = words[2].text == "inlet";
    if (! inlet && words[2].text != "outlet")
        throw CommandError ("neither inlet nor outlet: \"" + words[2].text + "\"");
    const auto index = static_cast<int> (wholeNumber (words[3], "the number"));
    const auto text = bench::assistanceOf (box, inlet ? ASSIST_INLET : ASSIST_OUTLET, index);
    printAnswer (box.name + " assist", bench::onOneLine (text));
}

void getState (Session& session, const Words& words)
{
    const auto& box = session.box (words[1].text);
    const auto state = bench::stateOf (box);
    if (! state)
        throw CommandError ("\"" + box.name + "\" gave no state");
    printAnswer (box.name + " state", *state);
}

void setState (Session& session, const Words& words)
{
    bench::setState (session.box (words[1].text), bench::atomsOf (words, 2));
}

void preset (Session& session, const Words& words)
{
    const auto& box = session.box (words[1].text);
    printAnswer (box.name + " preset", bench::presetOf (box));
}

void dictionary (Session&, const Words& words)
{
    if (words.size() > 2)
        return bench::putEntry (words[1].text, words[2].text, bench::atomsOf (words, 3));
    const auto entries = bench::entriesOf (words[1].text);
    if (! entries)
        throw CommandError ("no dictionary \"" + words[1].text + "\"");
    for (const auto& entry : *entries)
        Session::print (lineOf (entry));
}
}

const std::vector<Command>& inspectionCommands()
{
    static const std::vector<Command> table = {
        { "attr", 2, 2, "attr NAME ATTRIBUTE", "Prints the value of an attribute.", "attr verb gain", attribute },
        { "attrs", 1, 1, "attrs NAME", "Prints all visible attributes with their values.", "attrs verb", attributes },
        { "property", 3, 3, "property NAME ATTRIBUTE PROPERTY",
          "Prints a property of an attribute: label, default, minvalue, maxvalue, style, enumvals, ...",
          "property verb gain default", property },
        { "methods", 1, 1, "methods NAME", "Lists the messages of a class with their argument kinds.", "methods verb",
          methods },
        { "assist", 3, 3, "assist NAME inlet|outlet N", "Prints the assistance text of an inlet or outlet.",
          "assist verb outlet 0", assist },
        { "getvalueof", 1, 1, "getvalueof NAME", "Prints the state that pattr saves.", "getvalueof verb", getState },
        { "setvalueof", 1, anyNumber, "setvalueof NAME [ATOM ...]",
          "Restores a state that getvalueof printed, by an object of the same sizes.", "setvalueof verb 1 2 3",
          setState },
        { "preset", 1, 1, "preset NAME", "Prints what a preset object would store.", "preset verb", preset },
        { "dict", 1, anyNumber, "dict NAME [KEY ATOM ...]",
          "Prints a named dictionary; with a key, adds an entry to it.", "dict settings gain -6.", dictionary },
    };
    return table;
}

}
