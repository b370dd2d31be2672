#include "support/bench/BenchTest.h"
#include "host/bench/Words.h"
#include <algorithm>
#include <utility>

using bench::Event;

namespace
{
Messages messagesOf (const std::vector<Event>& events)
{
    Messages messages;
    for (const auto& event : events)
        messages.push_back (bench::messageOf (event));
    return messages;
}

Messages textsOf (const std::vector<Event>& events)
{
    Messages texts;
    for (const auto& event : events)
        texts.push_back (event.text);
    return texts;
}

bool isConsoleRow (const Event& event)
{
    const auto kinds = { Event::Kind::post, Event::Kind::warn, Event::Kind::error, Event::Kind::bug };
    return std::find (kinds.begin(), kinds.end(), event.kind) != kinds.end();
}

/** Rows without the name of their box: "error TEXT". */
Messages rowsOf (const std::vector<Event>& events)
{
    Messages rows;
    for (const auto& event : events)
        rows.push_back (bench::lineOf (event).substr (event.box.size() + 1));
    return rows;
}
}

BenchTest::BenchTest (bench::DeferMedium deferMedium) : patch (deferMedium)
{
    patch.setListener ([this] (const Event& event) {
        const std::lock_guard<std::mutex> lock (mutex);
        events.push_back (event);
    });
}

BenchTest::~BenchTest()
{
    patch.setListener ({}); // events during the patch's destruction would arrive after the list is gone
    freeDictionaries();
}

TestBox BenchTest::make (const std::string& text)
{
    return { *this, patch.make ("b" + std::to_string (++boxes), text) };
}

void BenchTest::putEntry (const std::string& dictionary, const std::string& key, const bench::Atoms& atoms)
{
    dictionaries.insert (dictionary);
    bench::putEntry (dictionary, key, atoms);
}

void BenchTest::freeDictionaries()
{
    for (const auto& name : std::exchange (dictionaries, {})) {
        auto* dictionary = dictobj_findregistered_retain (gensym (name.c_str()));
        dictobj_release (dictionary);
        object_free (dictionary);
    }
}

std::vector<Event> BenchTest::takeIf (const std::function<bool (const Event&)>& wanted)
{
    const std::lock_guard<std::mutex> lock (mutex);
    const auto rest =
        std::stable_partition (events.begin(), events.end(), [&] (const Event& e) { return ! wanted (e); });
    std::vector<Event> taken (rest, events.end());
    events.erase (rest, events.end());
    return taken;
}

std::vector<Event> BenchTest::take (Event::Kind kind, const std::string& box)
{
    return takeIf ([&] (const Event& event) { return event.kind == kind && (box.empty() || event.box == box); });
}

Messages BenchTest::console() { return rowsOf (takeIf (isConsoleRow)); }

Messages BenchTest::transcript()
{
    Messages lines;
    for (const auto& event : takeIf ([] (const Event&) { return true; }))
        lines.push_back (bench::lineOf (event));
    return lines;
}

void TestBox::send (const std::string& message, bench::Thread thread) { test->patch.send (*box, message, thread); }

void TestBox::send (const std::string& selector, const bench::Atoms& atoms, bench::Thread thread)
{
    test->patch.send (*box, gensym (selector.c_str()), atoms, thread);
}

Messages TestBox::leftOutlet()
{
    return messagesOf (test->takeIf (
        [this] (const Event& e) { return e.kind == Event::Kind::out && e.box == box->name && e.outlet == 0; }));
}

Messages TestBox::dumpOutlet()
{
    const auto last = bench::numberOfOutlets (*box) - 1;
    return messagesOf (test->takeIf (
        [=] (const Event& e) { return e.kind == Event::Kind::out && e.box == box->name && e.outlet == last; }));
}

Messages TestBox::dictionaryEntries() { return messagesOf (test->take (Event::Kind::dictionary, box->name)); }

Messages TestBox::console()
{
    return rowsOf (test->takeIf ([this] (const Event& e) { return isConsoleRow (e) && e.box == box->name; }));
}

Messages TestBox::notifications() { return textsOf (test->take (Event::Kind::notify, box->name)); }
Messages TestBox::window() { return textsOf (test->take (Event::Kind::window, box->name)); }

std::string TestBox::attribute (const std::string& name) const
{
    const auto atoms = bench::attributeOf (*box, name);
    return atoms ? bench::textOf (*atoms) : "no such attribute";
}

std::string TestBox::property (const std::string& attribute, const std::string& property) const
{
    const auto atoms = bench::propertyOf (*box, attribute, property);
    return atoms ? bench::textOf (*atoms) : "no such attribute";
}

void TestBox::free() { test->patch.free (std::exchange (box, nullptr)); }
