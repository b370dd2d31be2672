#include "ControlTest.h"

#include "gui/plane/PlaneComponent.h"
#include "gui/verb/HalcyraComponent.h"
#include "host/bench/WindowDriver.h"

#include <functional>
#include <utility>

/** What arrives in one turn, or after a user edit, is based on the state before it. */
class Turn : public ControlTest
{
protected:
    TestBox prepared()
    {
        auto box = settled ("@numsources 2 @numspeakers 3 @format xyz");
        for (const auto* message : { "store a", "source 1 xyz 1 2 3", "source 2 xyz 3 2 1", "store b",
                                     "listenereditable 1", "speakerseditable 1" })
            box.send (message);
        settle();
        transcript();
        return box;
    }

    void drag (TestBox& box, juce::Point<float> from, juce::Point<float> by)
    {
        using Action = bench::PointerEvent::Action;
        bench::PointerEvent event;
        for (const auto& [action, part] :
             { std::pair{ Action::down, 0.0f }, { Action::drag, 0.4f }, { Action::up, 1.0f } }) {
            event.action = action;
            event.x = from.x + part * by.x;
            event.y = from.y + part * by.y;
            bench::windowDriver()->pointer (box->object, event);
        }
        settle();
    }

    void openAt (TestBox& box, int page)
    {
        box.send ("open");
        settle();
        bench::windowDriver()->turnPage (box->object, page);
        settle();
    }

    static std::vector<float> numbersOf (TestBox& box, const char* attribute)
    {
        std::vector<float> numbers;
        const auto atoms = bench::attributeOf (*box, attribute).value();
        numbers.reserve (atoms.size());
        for (const auto& atom : atoms)
            numbers.push_back (static_cast<float> (atom_getfloat (&atom)));
        return numbers;
    }
};
INSTANTIATE_TEST_SUITE_P (DeferMedium, Turn, bothDeferModes, deferModeName);

namespace
{

/** Handled at once, or after the queue. */
constexpr const char* atOnce[] = {
    "source 1 xyz 1 1 0",
    "source 1 x++ 1",
    "sourcespositions 1 0 0 0 1 0",
    "source 1 yaw 20",
    "yaw 30 40",
    "source 1 orientationmode translation",
    "radiusconstraint 1",
    "listener xyz 1 2 3",
    "listener y++ 1",
    "listener yaw 20",
    "listener rpy 1 2 3",
    "listenerposition 0 1 0",
    "speaker 1 xyz 1 1 0",
    "speakers xyz 1 0 0 0 1 0 0 0 1",
    "zoom 2",
};
constexpr const char* waiting[] = {
    "rotate 1 10 0 0", "rotate 0 0 20 0", "recall a",          "store a",    "clearsnapshot a", "xsnapshot a b 0.5",
    "adjustzoom",      "gain 3",          "reverb tr0 4",      "reset",      "roomsize 3000.",  "early start 5",
    "cluster end 200", "early gl 3",      "early 1 2 3 4 5 6", "early G0 9",
};

}

TEST_P (Turn, EndsAsItsMessagesOneByOneWould)
{
    const auto stateAfter = [&] (const char* defer, const char* first, const char* second, bool isOneTurn) {
        auto box = prepared();
        box.send (defer);
        box.send (first);
        if (! isOneTurn)
            settle();
        box.send (second);
        settle();
        auto state = stateOf (box);
        for (const auto* name : { "a", "b" }) { // the snapshots' contents
            box.send ("sourcespositions 9 9 9 8 8 8");
            settle();
            box.send (std::string ("recall ") + name);
            settle();
            state += " " + box.attribute ("sourcespositions");
        }
        box.free();
        return state;
    };
    const auto expectSame = [&] (const auto& firsts, const auto& seconds) {
        for (const auto* defer : { "defer 0", "defer 1" })
            for (const auto* first : firsts)
                for (const auto* second : seconds)
                    EXPECT_EQ (stateAfter (defer, first, second, true), stateAfter (defer, first, second, false))
                        << defer << ", " << first << ", " << second;
    };
    expectSame (atOnce, atOnce);
    expectSame (atOnce, waiting);
    expectSame (waiting, waiting);
}

TEST_P (Turn, ABangTellsOnceWhatWaits)
{
    auto box = prepared();
    for (const auto* message : { "gain 3", "roomsize 3000.", "bang" })
        box.send (message);
    settle();
    EXPECT_THAT (box.leftOutlet(), testing::Contains ("reverb gain 3.").Times (1));
}

TEST_P (Turn, APartialMessageBehindTheHandLeavesTheRestAsTheHandSetIt)
{
    auto box = prepared();
    box.send ("zoom 0.3"); // nothing is sent
    openAt (box, 2);
    const auto& component = *box.record<t_halcyra_control>()->component;
    const auto& plane = *component.getPlane();
    struct Edit
    {
        const char* attribute;
        std::function<juce::Point<float>()> place;
        const char* message;
        std::size_t changed; // the number that the message adds 1 to
    };
    const Edit edits[] = {
        { "listenerposition", [&] { return plane.GetListener().screenPosition; }, "listener x++ 1", 0 },
        { "listenerposition", [&] { return plane.GetListener().screenPosition; }, "listener z++ 1", 2 },
        { "speakerspositions", [&] { return plane.GetScene().speakers[1].screenPosition; }, "speaker 1 y++ 1", 1 },
        { "speakerspositions", [&] { return plane.GetScene().speakers[0].screenPosition; }, "speaker 1 z++ 1", 2 },
        { "sourcespositions", [&] { return plane.GetScene().sources[0].screenPosition; }, "source 1 y++ 1", 1 },
        { "sourcespositions", [&] { return plane.GetScene().sources[1].screenPosition; }, "source 1 x++ 1", 0 },
    };
    for (const auto* defer : { "defer 0", "defer 1" })
        for (const auto& edit : edits) {
            box.send (defer);
            const auto before = numbersOf (box, edit.attribute);
            drag (box, component.getLocalPoint (&plane, edit.place()), { 30, -20 });
            auto expected = numbersOf (box, edit.attribute);
            EXPECT_NE (expected, before) << edit.message;
            expected[edit.changed] += 1;
            box.send (edit.message);
            settle();
            EXPECT_THAT (numbersOf (box, edit.attribute), testing::Pointwise (testing::FloatNear (1e-5f), expected))
                << defer << ", " << edit.message;
        }
}

TEST_P (Turn, APartialFilterBehindTheHandLeavesTheRestAsTheHandSetIt)
{
    auto box = prepared();
    for (const auto* filter : { "direct", "room", "early", "cluster" })
        box.send (std::string (filter) + " 1 2 3 4 300 5000");
    settle();
    openAt (box, 1);
    const auto& component = *box.record<t_halcyra_control>()->component;
    auto* page = dynamic_cast<juce::TabbedComponent*> (component.getChildComponent (0))->getCurrentContentComponent();
    int number = 0;
    for (const auto* filter : { "direct", "room", "early", "cluster" }) {
        const auto before = numbersOf (box, filter);
        int sliders = 0;
        auto* column = page->getChildComponent (number++);
        for (auto* part : column->getChildren())
            if (dynamic_cast<juce::Slider*> (part) != nullptr && sliders++ < 4)
                drag (box, component.getLocalPoint (part, part->getLocalBounds().getCentre()).toFloat(), { 0, -9 });
        auto expected = numbersOf (box, filter);
        EXPECT_NE (expected, before);
        expected[4] = 400;
        expected[5] = 6000;
        box.send (std::string (filter) + " freqs 400 6000");
        settle();
        EXPECT_EQ (numbersOf (box, filter), expected) << filter;
    }
}
