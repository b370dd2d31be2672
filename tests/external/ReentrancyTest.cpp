#include "ControlTest.h"
#include "EveryMessage.h"

#include "external/ControlAttributes.h"
#include "external/ViewerAttributes.h"
#include "host/bench/WindowDriver.h"
#include "support/bench/HookClass.h"

/** An object whose patch acts while it is sending: "victim", with a hook on both outlets and on its notifications.
    Under the address sanitizer these tests find any access after it is freed. */
class Reentrancy : public ControlTest
{
public:
    Reentrancy() { patch.load (hook_main); }
    ~Reentrancy() override { onHook() = nullptr; }

    /** Null once freed. */
    bench::Box* victim() { return patch.find ("victim"); }

    void send (const std::string& message, bench::Thread thread = bench::Thread::main)
    {
        if (auto* box = victim())
            patch.send (*box, message, thread);
    }

    void point (bench::PointerEvent::Action action, float x, float y, float delta = 0, bool right = false)
    {
        bench::PointerEvent event;
        event.action = action;
        event.x = x;
        event.y = y;
        event.wheelDelta = delta;
        event.right = right;
        if (auto* box = victim())
            bench::windowDriver()->pointer (box->object, event);
    }

    void drag (float x, float y, float x2, float y2)
    {
        using Action = bench::PointerEvent::Action;
        point (Action::down, x, y);
        point (Action::drag, x2, y2);
        point (Action::drag, x, y2);
        point (Action::up, x, y2);
    }

    void key (const char* description)
    {
        if (auto* box = victim())
            bench::windowDriver()->key (box->object, description);
    }

    void openAt (int page)
    {
        send ("open");
        settle();
        bench::windowDriver()->turnPage (victim()->object, page);
        settle();
    }

    /** One way to make an object send. */
    struct Road
    {
        std::string name;
        std::function<void (Reentrancy&)> prepare;
        std::function<void (Reentrancy&)> act;
        bool isHand = false; // edits in the window; each of them sends
    };

    /** Triggers a fresh, prepared object, and runs the patch's reaction at its output with this number, from 0. Returns
        how often the object sent. */
    int walk (const Road& road, int number, const std::function<void()>& reaction)
    {
        onHook() = nullptr;
        auto* made = patch.make ("victim", "halcyra~.control @numsources 2 @numspeakers 2");
        auto* hook = patch.make ("hook", "test.hook");
        settle();
        patch.connect (*made, 0, *hook);
        patch.connect (*made, 1, *hook);
        object_attach_byptr (made->object, hook->object);
        if (road.prepare)
            road.prepare (*this);
        settle();
        int speeches = 0;
        onHook() = [&] {
            if (speeches++ == number)
                reaction();
        };
        road.act (*this);
        settle();
        onHook() = nullptr;
        patch.free (victim());
        patch.free (hook);
        settle();
        EXPECT_TRUE (take (bench::Event::Kind::bug, "").empty()); // what was freed is not touched
        transcript();
        return speeches;
    }

    std::vector<Road> roads();
};
INSTANTIATE_TEST_SUITE_P (DeferMedium, Reentrancy, bothDeferModes, deferModeName);

namespace
{

/** A non-default value of an attribute. */
std::string otherValue (const orvanemax::AttributeRow& row)
{
    const std::string type = row.type;
    if (row.capacity > 0) {
        std::string list;
        for (int i = 0; i < 12; ++i)
            list += type == "symbol" ? " omni" : " " + std::to_string (std::max (0.25, row.low) + i * 0.01);
        return list;
    }
    if (type == "symbol")
        return row.choices == nullptr                             ? " other"
               : std::string (row.choices).find ("front") < 99    ? " front"
               : std::string (row.choices).find ("circular") < 99 ? " square"
                                                                  : " xyz";
    if (row.style != nullptr && std::string (row.style) == "onoff")
        return std::string (" ") + (row.defaultText[0] == '0' ? "1" : "0");
    return " " + std::to_string (row.hasBounds ? 0.7 * row.low + 0.3 * row.high : 2.0);
}

/** Under `defer 0` the scene changes within the message, under 1 after the queue. */
void prepareScene (Reentrancy& test, const char* defer)
{
    for (const auto* message :
         { "numareas 2", "numanchors 2", "store a", "source 1 xyz 0.3 0.4 0", "speaker 1 xyz 0.5 0.5 0", "store b" })
        test.send (message);
    test.send (std::string ("defer ") + defer);
    t_atom other{};
    atom_setlong (&other, 0);
    for (const auto* attribute : { "tr0", "showsources", "sourceslevels", "zoom", "listeneryaw" })
        test.putEntry ("changes", attribute, { other });
    test.settle();
}

}

std::vector<Reentrancy::Road> Reentrancy::roads()
{
    std::vector<Road> all;
    for (const auto* defer : { "0", "1" })
        for (const auto* message : everyMessage)
            all.push_back ({ std::string (message) + ", defer " + defer, [=] (auto& t) { prepareScene (t, defer); },
                             [=] (auto& t) { t.send (message); } });
    const auto addAttribute = [&] (const orvanemax::AttributeRow& row) {
        const auto message = row.name + otherValue (row);
        all.push_back ({ message, [] (auto& t) { prepareScene (t, "0"); }, [=] (auto& t) { t.send (message); } });
    };
    for (const auto& attribute : halcyra::controlAttributes())
        addAttribute (attribute.row);
    for (const auto& attribute : halcyra::viewerAttributes())
        addAttribute (attribute.row);

    all.push_back ({ "from the scheduler", nullptr, [] (auto& t) {
                        t.send ("gain 3", bench::Thread::scheduler);
                        t.send ("source 1 xyz 1 1 1", bench::Thread::scheduler);
                        t.send ("dump", bench::Thread::scheduler);
                    } });
    for (const auto* defer : { "0", "1" })
        all.push_back ({ std::string ("a preset, defer ") + defer, [=] (auto& t) { prepareScene (t, defer); },
                         [] (auto& t) {
                             bench::presetOf (*t.victim());
                             auto state = bench::stateOf (*t.victim());
                             if (t.victim() == nullptr || ! state)
                                 return;
                             for (auto& atom : *state)
                                 if (atom.a_type == A_FLOAT)
                                     atom.a_w.w_float += 0.0625;
                             bench::setState (*t.victim(), *state);
                         } });

    using Action = bench::PointerEvent::Action;
    const auto onPage = [&] (const char* name, int page, std::function<void (Reentrancy&)> act) {
        all.push_back ({ name, [=] (auto& t) { t.openAt (page); }, std::move (act), true });
    };
    onPage ("a slider is dragged", 0, [] (auto& t) { t.drag (138, 241, 58, 241); });
    onPage ("a slider is wheeled", 0, [] (auto& t) { t.point (Action::wheel, 138, 241, 1); });
    onPage ("a slider is double-clicked", 0, [] (auto& t) {
        t.drag (138, 241, 58, 241);
        t.point (Action::doubleClick, 138, 241);
    });
    onPage ("a handle is dragged", 1, [] (auto& t) { t.drag (65, 135, 65, 61); });
    onPage ("a source is dragged", 2, [] (auto& t) { t.drag (213, 80, 250, 160); });
    onPage ("the scene is wheeled", 2, [] (auto& t) { t.point (Action::wheel, 300, 200, 1); });
    onPage ("keys", 2, [] (auto& t) {
        for (const auto* word : { "v", "a", "g", "tab", "-", "cursor left", "ctrl + w" })
            t.key (word);
    });
    // Undoing a user edit sends it again, from within the undo key's handler.
    const auto takenBack = [&] (const char* name, int page, auto&& edit) {
        all.push_back ({ name,
                         [=] (auto& t) {
                             t.openAt (page);
                             edit (t);
                         },
                         [] (auto& t) {
                             for (const auto* word : { "ctrl + z", "ctrl + y", "ctrl + z", "ctrl + shift + z" }) {
                                 t.key (word);
                                 t.settle();
                             }
                         },
                         true });
    };
    takenBack ("a slider is undone", 0, [] (auto& t) { t.drag (138, 241, 58, 241); });
    takenBack ("the reset button is undone", 0, [] (auto& t) {
        t.drag (138, 241, 58, 241);
        t.point (Action::down, 683, 366);
        t.point (Action::up, 683, 366);
    });
    takenBack ("a handle is undone", 1, [] (auto& t) { t.drag (65, 135, 65, 61); });
    takenBack ("a source's move is undone", 2, [] (auto& t) { t.drag (213, 80, 250, 160); });
    onPage ("the menu", 2, [] (auto& t) {
        t.point (Action::down, 300, 200, 0, true);
        t.point (Action::up, 300, 200, 0, true);
        t.settle();
        for (const auto* word : { "cursor down", "cursor down", "return" })
            t.key (word);
    });
    return all;
}

TEST_P (Reentrancy, AnObjectMayBeFreedInsideWhateverItSays)
{
    int spoken = 0;
    for (const auto& road : roads()) {
        SCOPED_TRACE (road.name);
        int speeches = 0;
        // At the first outputs, one in the middle and the last.
        for (const int number : { 0, 1, 2 })
            speeches = std::max (speeches, walk (road, number, [this] { patch.free (victim()); }));
        const auto all = walk (road, -1, [] {});
        spoken += all;
        EXPECT_TRUE (all > 0 || ! road.isHand);
        EXPECT_LE (speeches, all);
        for (const int number : { all / 2, all - 1 })
            if (number > 2)
                walk (road, number, [this] { patch.free (victim()); });
    }
    EXPECT_GT (spoken, 800);
}

TEST_P (Reentrancy, AnObjectMayBeToldAnythingInsideWhateverItSays)
{
    const char* replies[] = { "wclose", "open", "recall a", "source 2 xyz 1 2 3", "gain 7",
                              "reset",  "bang", "dump",     "adjustzoom",         "sourcespositions 1 2 3 4 5 6" };
    std::size_t next = 0;
    for (const auto& road : roads()) {
        SCOPED_TRACE (road.name);
        // One reply each, in turn; replies send too, and are not replied to.
        const auto* reply = replies[next++ % std::size (replies)];
        for (const int number : { 0, 1 })
            walk (road, number, [this, reply] { send (reply); });
    }
}
