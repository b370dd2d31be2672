#include "host/bench/patchbench/Commands.h"
#include <algorithm>
#include <cmath>
#include <filesystem>

namespace patchbench
{

namespace
{
using Words = std::vector<bench::Word>;
using bench::PointerEvent;

void report (const std::string& complaint)
{
    if (! complaint.empty())
        throw CommandError (complaint);
}

struct ActionRow
{
    const char* word;
    PointerEvent::Action action;
};

constexpr ActionRow actions[] = {
    { "down", PointerEvent::Action::down },
    { "drag", PointerEvent::Action::drag },
    { "up", PointerEvent::Action::up },
    { "move", PointerEvent::Action::move },
    { "double", PointerEvent::Action::doubleClick },
    { "wheel", PointerEvent::Action::wheel },
};

struct ModifierRow
{
    const char* word;
    bool PointerEvent::*flag;
};

constexpr ModifierRow modifiers[] = {
    { "shift", &PointerEvent::shift },
    { "ctrl", &PointerEvent::ctrl },
    { "alt", &PointerEvent::alt },
    { "right", &PointerEvent::right },
};

/** A table's words, for the complaint about an unknown one. */
template <typename Row, std::size_t size>
std::string wordsIn (const Row (&table)[size])
{
    std::string words;
    for (const auto& row : table)
        words += (words.empty() ? "" : ", ") + std::string (row.word);
    return words;
}

PointerEvent::Action actionNamed (const std::string& word)
{
    for (const auto& row : actions)
        if (word == row.word)
            return row.action;
    throw CommandError ("unknown action \"" + word + "\"; there are " + wordsIn (actions));
}

void addModifier (PointerEvent& event, const std::string& word)
{
    for (const auto& row : modifiers)
        if (word == row.word) {
            event.*row.flag = true;
            return;
        }
    throw CommandError ("unknown modifier \"" + word + "\"; there are " + wordsIn (modifiers));
}

float coordinate (const bench::Word& word, const char* what)
{
    const auto value = static_cast<float> (number (word, what));
    if (! std::isfinite (value))
        throw CommandError (std::string (what) + " is out of range: " + word.text);
    return value;
}

void mouse (Session& session, const Words& words)
{
    auto& box = session.box (words[1].text);
    PointerEvent event;
    event.action = actionNamed (words[2].text);
    event.x = coordinate (words[3], "the x position");
    event.y = coordinate (words[4], "the y position");
    std::size_t next = 5;
    if (event.action == PointerEvent::Action::wheel) {
        if (words.size() <= next)
            throw CommandError ("the wheel needs a distance");
        event.wheelDelta = coordinate (words[next++], "the distance");
    }
    for (; next < words.size(); ++next)
        addModifier (event, words[next].text);
    report (Session::windows().pointer (box.object, event));
}

void page (Session& session, const Words& words)
{
    auto& box = session.box (words[1].text);
    report (Session::windows().turnPage (box.object, static_cast<int> (wholeNumber (words[2], "the page"))));
}

void key (Session& session, const Words& words)
{
    auto& box = session.box (words[1].text);
    std::string description;
    for (std::size_t i = 2; i < words.size(); ++i)
        description += (description.empty() ? "" : " ") + words[i].text;
    report (Session::windows().key (box.object, description));
}

/** Extensions of picture formats that are not supported. */
constexpr const char* otherPictures[] = { ".jpg", ".jpeg", ".gif", ".bmp", ".tif", ".tiff", ".webp", ".svg", ".pdf" };

void shot (Session& session, const Words& words)
{
    auto ending = std::filesystem::u8path (words[2].text).extension().u8string();
    std::transform (ending.begin(), ending.end(), ending.begin(),
                    [] (char c) { return c >= 'A' && c <= 'Z' ? static_cast<char> (c - 'A' + 'a') : c; });
    for (const auto* other : otherPictures)
        if (ending == other)
            throw CommandError ("shot writes PNG pictures, not " + ending + ": " + words[2].text);
    report (Session::windows().writePicture (session.box (words[1].text).object, words[2].text));
}
}

const std::vector<Command>& windowCommands()
{
    static const std::vector<Command> table = {
        { "page", 2, 2, "page NAME N", "Turns to a page of the window: 0 time structure, 1 filters, 2 scene.",
          "page verb 2", page },
        { "mouse", 4, 9, "mouse NAME down|drag|up|move|double|wheel X Y [DELTA] [shift] [ctrl] [alt] [right]",
          "Moves and presses the mouse at a pixel of the window; only wheel takes DELTA.",
          "mouse verb down 200 250 shift", mouse },
        { "key", 2, anyNumber, "key NAME DESCRIPTION", "Presses a key in the window.", "key verb ctrl + a", key },
        { "shot", 2, 2, "shot NAME FILE", "Saves a picture of the window as PNG.", "shot verb picture.png", shot },
    };
    return table;
}

}
