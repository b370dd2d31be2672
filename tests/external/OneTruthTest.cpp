#include "Agreement.h"
#include "RandomMessages.h"

#include "host/bench/WindowDriver.h"
#include "host/bench/Words.h"

#include <deque>
#include <random>

namespace
{

using namespace walk;
namespace cell = halcyra::cell;
using halcyra::Edit;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int stepsOfWalk = 1000;
#else
constexpr int stepsOfWalk = 13000;
#endif
constexpr int stepsBetweenRecalls = 60;

std::vector<float> reverbOf (const HalcyraComponent& component)
{
    std::vector<float> values;
    for (int i = 0; i < cell::count; ++i)
        if (i != cell::roomSize)
            values.push_back (component.getModel().value (i));
    return values;
}

}

class OneTruth : public Agreement
{
protected:
    // ---- The walk

    void walk (const Sizes& sizes, unsigned seed)
    {
        Dice dice (seed);
        walker = std::make_unique<TestBox> (make ("halcyra~.control " + sizes.words()));
        receiver = std::make_unique<TestBox> (make ("halcyra~.control " + sizes.words()));
        settle();
        pressed = false;
        pool = { bench::stateOf (**walker).value() };
        for (int i = 0; i < stepsOfWalk; ++i) {
            turn (dice, sizes);
            agree (*walker);
            if (dice.oneIn (4)) {
                walker->send ("bang");
                settle();
                agree (*walker);
            }
            if (dice.oneIn (20) && ! HasFailure())
                keepState (dice);
            if (dice.oneIn (stepsBetweenRecalls) && ! HasFailure())
                recallByAllRoads (dice, sizes);
            if (HasFailure()) {
                std::string steps;
                for (const auto& line : log)
                    steps += line + "\n";
                FAIL() << sizes.words() << ", step " << i << ", after\n" << steps;
            }
        }
        walker->free();
        receiver->free();
        settle();
        told.clear();
    }

    /** One or more steps, until all notifications have been sent. */
    void turn (Dice& dice, const Sizes& sizes)
    {
        const bool isHeld = dice.oneIn (4);
        if (isHeld)
            patch.hold();
        const bool aloneAndFree = ! isHeld && ! pressed;
        if (aloneAndFree && dice.oneIn (20)) {
            const auto message = roomMessage (dice);
            act (message);
            settle();
            const auto volume = static_cast<float> (std::atof (message.c_str() + sizeof "roomsize"));
            return expectRoom (volume);
        }
        for (int steps = isHeld ? 1 + dice.below (7) : 1; steps > 0; --steps)
            step (dice, sizes);
        note (isHeld ? "release" : "settle");
        if (isHeld)
            patch.release();
        else
            settle();
    }

    void step (Dice& dice, const Sizes& sizes)
    {
        switch (dice.below (12)) {
        case 0:
        case 1:
        case 2:
            return hand (dice);
        case 3:
            return key (dice);
        case 4:
            if (dice.oneIn (3))
                return recallOldState (dice);
            return window (dice);
        case 5:
            if (dice.oneIn (4)) {
                const auto& mirror = dice.in (halcyra::reverbMirrors);
                const std::string name = dice.oneIn (4) ? dice.in (halcyra::filterNames) : mirror.attribute.name;
                note (name + " with bad numbers");
                return walker->send (name, badNumbers (dice));
            }
            [[fallthrough]];
        default:
            act (randomMessage (dice, sizes), dice.oneIn (8) ? bench::Thread::scheduler : bench::Thread::main);
        }
    }

    void note (const std::string& line)
    {
        log.push_back (line);
        if (log.size() > 40)
            log.pop_front();
    }

    void act (const std::string& message, bench::Thread thread = bench::Thread::main)
    {
        note ((thread == bench::Thread::main ? "send " : "scheduler: send ") + message);
        walker->send (message, thread);
    }

    void window (Dice& dice)
    {
        switch (dice.below (8)) {
        case 0:
            return act ("wclose");
        case 1:
        case 2:
            return act ("open");
        default: {
            const int page = dice.below (3);
            note ("page " + std::to_string (page));
            bench::windowDriver()->turnPage ((*walker)->object, page);
        }
        }
    }

    void pointer (bench::PointerEvent event, juce::Point<int> place)
    {
        event.x = static_cast<float> (place.x);
        event.y = static_cast<float> (place.y);
        constexpr const char* names[] = { "down", "drag", "up", "move", "double", "wheel" };
        note (std::string ("mouse ") + names[static_cast<int> (event.action)] + " " + std::to_string (place.x) + " " +
              std::to_string (place.y) +
              (event.wheelDelta != 0 ? " " + text (static_cast<double> (event.wheelDelta)) : "") +
              (event.shift ? " shift" : "") + (event.ctrl ? " ctrl" : "") + (event.alt ? " alt" : ""));
        bench::windowDriver()->pointer ((*walker)->object, event);
    }

    void hand (Dice& dice)
    {
        using Action = bench::PointerEvent::Action;
        const auto place = target (dice);
        bench::PointerEvent event;
        event.ctrl = dice.oneIn (6);
        event.alt = dice.oneIn (6);
        event.shift = dice.oneIn (8);
        const auto with = [&event] (Action action) {
            event.action = action;
            return event;
        };
        if (pressed) {
            pressed = ! dice.oneIn (3);
            return pointer (with (pressed ? Action::drag : Action::up), place);
        }
        switch (dice.below (6)) {
        case 0:
            event.wheelDelta = 0.2f * static_cast<float> (dice.jitter (5));
            return pointer (with (Action::wheel), place);
        case 1:
            return pointer (with (Action::doubleClick), place);
        case 2:
            pressed = true;
            return pointer (with (Action::down), place);
        default:
            pointer (with (Action::down), place);
            for (int i = dice.below (3); i > 0; --i)
                pointer (with (Action::drag), place + juce::Point<int> (dice.jitter (60), dice.jitter (60)));
            pointer (with (Action::up), place + juce::Point<int> (dice.jitter (60), dice.jitter (60)));
        }
    }

    /** A control on the front page, or an object of the scene. */
    juce::Point<int> target (Dice& dice)
    {
        auto& component = componentOf (*walker);
        const juce::Point<int> anywhere (dice.below (component.getWidth()), dice.below (component.getHeight()));
        if (component.getNumChildComponents() == 0 || dice.oneIn (12))
            return anywhere;
        auto* tabs = dynamic_cast<juce::TabbedComponent*> (component.getChildComponent (0));
        auto* page = tabs->getCurrentContentComponent();
        if (tabs->getCurrentTabIndex() == 2) {
            const auto& plane = *component.getPlane();
            std::vector<juce::Point<float>> places{ plane.GetListener().screenPosition };
            for (const auto& source : plane.GetScene().sources)
                places.push_back (source.screenPosition);
            for (const auto& speaker : plane.GetScene().speakers)
                places.push_back (speaker.screenPosition);
            const auto place = dice.in (places).toInt() + juce::Point<int> (dice.jitter (6), dice.jitter (6));
            return component.getLocalPoint (&plane, place);
        }
        if (tabs->getCurrentTabIndex() == 1)
            page = dice.in (partsOf<lumo::HLShelfComponent> (*page));
        std::vector<juce::Component*> controls;
        for (auto* part : page->getChildren())
            if (part->isVisible() && dynamic_cast<juce::Label*> (part) == nullptr &&
                dynamic_cast<juce::GroupComponent*> (part) == nullptr)
                controls.push_back (part);
        auto& chosen = *dice.in (controls);
        return component.getLocalPoint (
            &chosen, chosen.getLocalBounds().getCentre() +
                         juce::Point<int> (dice.jitter (chosen.getWidth() / 2), dice.jitter (chosen.getHeight() / 2)));
    }

    void key (Dice& dice)
    {
        constexpr const char* keys[] = { "ctrl + z",    "ctrl + z", "ctrl + z",    "ctrl + shift + z",
                                         "ctrl + y",    "ctrl + w", "cursor left", "cursor up",
                                         "cursor down", "tab",      "a",           "s",
                                         "l",           "c",        "v",           "g",
                                         "+",           "-",        "=",           "ctrl + a",
                                         "spacebar" };
        const auto* description = dice.of (keys);
        note (std::string ("key ") + description);
        bench::windowDriver()->key ((*walker)->object, description);
    }

    void recallOldState (Dice& dice)
    {
        note ("an old state");
        const auto& state = dice.in (pool);
        if (dice.oneIn (2))
            bench::setState (**walker, state);
        else
            walker->send ("recallpreset", state);
    }

    void keepState (Dice& dice)
    {
        auto state = bench::stateOf (**walker).value();
        if (pool.size() < 30)
            pool.push_back (std::move (state));
        else
            pool[static_cast<std::size_t> (dice.below (30))] = std::move (state);
    }

    // ---- The room

    /** The present state is the room's, whatever preceded it. */
    void expectRoom (float cubicMetres)
    {
        const auto& model = componentOf (*walker).getModel();
        halcyra::ReverbModel fresh (model.numInternals());
        fresh.setParameter (parameter::tr0, model.value (parameter::tr0), Edit::quiet);
        fresh.setRoomSize (cubicMetres, Edit::quiet);
        for (const auto number :
             { parameter::earlyStart, parameter::earlyEnd, parameter::earlyDistr, parameter::clusterStart,
               parameter::clusterEnd, parameter::clusterDistr, parameter::reverbStart, parameter::modalDensity })
            EXPECT_EQ (model.value (number), fresh.value (number))
                << "parameter " << number << " of " << cubicMetres << " m^3";
        EXPECT_EQ (model.roomSize(), fresh.roomSize());
    }

    // ---- Recall

    enum class Reach
    {
        reverb,
        visible
    };

    struct Road
    {
        const char* name;
        Reach reach;
        void (OneTruth::*travel) (TestBox& to);
    };

    void bySetvalueof (TestBox& to) { bench::setState (*to, bench::stateOf (**walker).value()); }
    void byPreset (TestBox& to)
    {
        const auto preset = bench::presetOf (**walker);
        to.send ("recallpreset", { preset.begin() + 3, preset.end() });
    }
    void byDictionary (TestBox& to)
    {
        patch.connect (**walker, 1, *to);
        walker->send ("dumpdict");
        settle();
        patch.disconnect (**walker, 1, *to);
    }
    void byBang (TestBox& to)
    {
        patch.connect (**walker, 0, *to);
        walker->send ("bang");
        settle();
        patch.disconnect (**walker, 0, *to);
    }

    void recallByAllRoads (Dice& dice, const Sizes& sizes)
    {
        constexpr Road roads[] = {
            { "setvalueof", Reach::visible, &OneTruth::bySetvalueof },
            { "recallpreset", Reach::visible, &OneTruth::byPreset },
            { "dictionary", Reach::visible, &OneTruth::byDictionary },
            { "bang", Reach::reverb, &OneTruth::byBang },
        };
        for (const auto& road : roads) {
            for (int i = 0; i < 8; ++i)
                receiver->send (randomMessage (dice, sizes));
            settle();
            auto fresh = make ("halcyra~.control " + sizes.words());
            settle();
            for (auto* to : { &fresh, receiver.get() }) {
                (this->*road.travel) (*to);
                settle();
                arrived (*to, road.reach,
                         std::string (road.name) + (to == &fresh ? " into a fresh one" : " into a random one"));
                agree (*to);
            }
            fresh.free();
        }
        std::vector<bench::Word> words{ { "halcyra~.control" } };
        for (const auto& name : bench::visibleAttributes (**walker)) {
            words.push_back ({ "@" + name });
            const auto atoms = bench::attributeOf (**walker, name).value();
            for (const auto& atom : atoms)
                words.push_back (
                    { atom.a_type == A_SYM ? std::string (atom_getsym (&atom)->s_name) : bench::textOf ({ atom }),
                      atom.a_type == A_SYM });
        }
        TestBox box (*this, patch.make ("at", words));
        settle();
        arrived (box, Reach::reverb, "@ in the box");
        agree (box);
        box.free();
        settle();
    }

    void arrived (TestBox& to, Reach reach, const std::string& road)
    {
        EXPECT_EQ (reverbOf (componentOf (to)), reverbOf (componentOf (*walker))) << road;
        if (reach == Reach::reverb)
            return;
        for (const auto& name : bench::visibleAttributes (*to))
            if (name == "yaw")
                yawsArrived (to, road);
            else
                EXPECT_EQ (to.attribute (name), walker->attribute (name)) << name << " by " << road;
    }

    /** Two of the modes store no yaw: the yaws set before they were selected remain. */
    void yawsArrived (TestBox& to, const std::string& road)
    {
        const auto& sources = componentOf (*walker).getPlane()->GetScene().sources;
        const auto sent = numbersOf (bench::attributeOf (**walker, "yaw").value());
        const auto got = numbersOf (bench::attributeOf (*to, "yaw").value());
        for (std::size_t i = 0; i < sources.size(); ++i) {
            const auto mode = sources[i].yawMode;
            if (mode == lumo::Plane::Orientation::follow || mode == lumo::Plane::Orientation::listenerConstraint)
                continue;
            EXPECT_EQ (got[i], sent[i]) << "yaw " << i << " by " << road;
        }
    }

    std::unique_ptr<TestBox> walker, receiver;
    std::vector<bench::Atoms> pool;
    std::deque<std::string> log;
    bool pressed = false;
};

INSTANTIATE_TEST_SUITE_P (DeferMedium, OneTruth, bothDeferModes, deferModeName);

TEST_P (OneTruth, HoldsThroughWhateverComes)
{
    unsigned seed = GetParam() == bench::DeferMedium::queue ? 100 : 200;
    for (const auto& sizes : walkSizes) {
        walk (sizes, ++seed);
        if (HasFailure())
            return;
    }
}
