#include "ControlTest.h"
#include "RandomMessages.h"

#include "external/ReverbParameters.h"
#include "gui/plane/PlaneComponent.h"
#include "gui/verb/HLShelfComponent.h"
#include "gui/verb/HalcyraComponent.h"
#include "gui/verb/HalcyraTimeStructureLayout.h"
#include "host/bench/WindowDriver.h"
#include "host/bench/Words.h"
#include "text/OrvaneDspUnitText.h"

#include <cmath>
#include <deque>
#include <map>
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

/** The last output per outlet message, by box and first words: "reverb tr0". */
using Told = std::map<std::string, bench::Atoms>;

template <typename Part>
std::vector<Part*> partsOf (juce::Component& parent)
{
    std::vector<Part*> parts;
    for (auto* child : parent.getChildren())
        if (auto* part = dynamic_cast<Part*> (child))
            parts.push_back (part);
    return parts;
}

std::vector<float> reverbOf (const HalcyraComponent& component)
{
    std::vector<float> values;
    for (int i = 0; i < cell::count; ++i)
        if (i != cell::roomSize)
            values.push_back (component.getModel().value (i));
    return values;
}

}

class OneTruth : public ControlTest
{
protected:
    OneTruth()
    {
        patch.setListener ([this] (const bench::Event& event) {
            if (! event.onMainThread)
                return;
            if (event.kind == bench::Event::Kind::out && event.outlet == 0) {
                told[event.box + keyOf (event)] = event.atoms;
                isStoredAlready (event);
            } else if (event.kind == bench::Event::Kind::bug)
                bugs.push_back (event.text);
        });
    }

    static std::string keyOf (const bench::Event& event)
    {
        if (event.atoms.empty() || event.atoms.front().a_type == A_FLOAT)
            return " " + event.text;
        const auto& first = event.atoms.front();
        return " " + event.text + " " +
               (first.a_type == A_SYM ? std::string (atom_getsym (&first)->s_name)
                                      : std::to_string (atom_getlong (&first)));
    }

    static HalcyraComponent& componentOf (const TestBox& box) { return *box.record<t_halcyra_control>()->component; }

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
                const std::string name =
                    dice.oneIn (4) ? dice.in (halcyra::filterNames) : orvanemax::symbol (mirror.attribute)->s_name;
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

    // ---- Invariants at any time

    /** Whoever reads back what was just sent gets the same value. */
    void isStoredAlready (const bench::Event& event)
    {
        const auto* box = patch.find (event.box);
        if (box == nullptr || event.atoms.empty())
            return;
        const auto stored = [&] (const char* name) { return numbersOf (bench::attributeOf (*box, name).value()); };
        const auto isWord = event.atoms.front().a_type == A_SYM;
        const auto isCartesian = [&] (const t_atom& atom) {
            return atom.a_type == A_SYM && std::string_view (atom_getsym (&atom)->s_name) == "xyz";
        };
        if (event.text == "source" && event.atoms.size() == 5 && isCartesian (event.atoms[1])) {
            const auto all = stored ("sourcespositions");
            const auto first = all.begin() + 3 * (atom_getlong (&event.atoms.front()) - 1);
            EXPECT_EQ (std::vector<float> (first, first + 3),
                       numbersOf ({ event.atoms.begin() + 2, event.atoms.end() }))
                << "when told: " << bench::lineOf (event);
        } else if (event.text == "speakers" && isCartesian (event.atoms.front())) {
            EXPECT_EQ (stored ("speakerspositions"), numbersOf ({ event.atoms.begin() + 1, event.atoms.end() }))
                << "when told: " << bench::lineOf (event);
        } else if (! isWord && event.atoms.size() == 6) {
            EXPECT_EQ (stored (event.text.c_str()), numbersOf (event.atoms)) << "when told: " << bench::lineOf (event);
        } else if (isWord && event.atoms.size() == 2) {
            const auto* key = atom_getsym (&event.atoms.front())->s_name;
            for (const auto& row : halcyra::parameterTable)
                if (event.text == row.selector && std::string_view (row.key) == key) {
                    const auto& mirror = halcyra::reverbMirrors[static_cast<std::size_t> (row.number)];
                    EXPECT_EQ (stored (orvanemax::symbol (mirror.attribute)->s_name).front(),
                               numberOf (event.atoms.back()))
                        << "when told: " << bench::lineOf (event);
                }
        }
    }

    // ---- Invariants at the end of a turn

    void agree (const TestBox& box)
    {
        const auto& component = componentOf (box);
        const auto& model = component.getModel();
        for (const auto& row : halcyra::parameterTable) {
            const auto value = model.value (row.number);
            const auto& mirror = halcyra::reverbMirrors[static_cast<std::size_t> (row.number)];
            const auto* attribute = orvanemax::symbol (mirror.attribute)->s_name;
            EXPECT_EQ (row.range.stepped (value), value) << attribute << " stands between steps";
            EXPECT_EQ (numbersOf (bench::attributeOf (*box, attribute).value()), std::vector<float>{ value })
                << attribute;
            const auto& left = told[box->name + " " + row.selector + " " + row.key];
            ASSERT_EQ (left.size(), 2u) << row.name;
            EXPECT_EQ (numberOf (left.back()), value) << "told: " << row.selector << " " << row.key;
        }
        for (HalcyraFilter filter = 0; filter < 4; ++filter) {
            const std::string name = halcyra::filterNames[static_cast<std::size_t> (filter)];
            const auto& held = component.getFilter (filter);
            std::vector<float> values (halcyra::shelfTable.size());
            std::transform (halcyra::shelfTable.begin(), halcyra::shelfTable.end(), values.begin(),
                            [&] (const halcyra::ShelfRow& row) { return held.*row.value; });
            EXPECT_EQ (numbersOf (bench::attributeOf (*box, name).value()), values) << name;
            EXPECT_EQ (numbersOf (told[box->name + " " + name]), values) << "told: " << name;
        }
        sceneAgrees (box);
        if (component.getNumChildComponents() > 0)
            windowAgrees (component);
        EXPECT_EQ (bugs, std::vector<std::string>());
    }

    static float numberOf (const t_atom& atom) { return static_cast<float> (atom_getfloat (&atom)); }

    static std::vector<float> numbersOf (const bench::Atoms& atoms)
    {
        std::vector<float> numbers;
        for (const auto& atom : atoms)
            numbers.push_back (numberOf (atom));
        return numbers;
    }

    void sceneAgrees (const TestBox& box)
    {
        const auto& x = *box.record<t_halcyra_control>();
        const auto& plane = *x.plane;
        const auto pointOf = [] (const float* values) { return qel::Point3{ values[0], values[1], values[2] }; };
        const auto isAngle = [] (float radians, float degrees) {
            return std::abs (std::remainder (static_cast<double> (radians) -
                                                 static_cast<double> (degrees) * 3.14159265358979 / 180,
                                             2 * 3.14159265358979)) < 1e-5;
        };
        for (std::size_t i = 0; i < plane.GetNumSources(); ++i) {
            const auto& source = plane.GetScene().sources[i];
            EXPECT_EQ (pointOf (x.sourcespositions + 3 * i), source.position) << "source " << i;
            EXPECT_TRUE (isAngle (source.yaw, static_cast<float> (atom_getfloat (&x.yaw[i])))) << "yaw " << i;
            EXPECT_TRUE (isAngle (source.aperture, static_cast<float> (atom_getfloat (&x.aperture[i]))))
                << "aperture " << i;
            EXPECT_EQ (source.radius, numberOf (x.radius[i])) << "radius " << i;
            EXPECT_EQ (source.level, numberOf (x.sourceslevels[i])) << "level " << i;
            EXPECT_EQ (lumo::Plane::Orientation::NameOf (source.yawMode), x.orientationmode[i]->s_name) << i;
            const auto colour = numbersOf ({ x.sourcecolor + 4 * i, x.sourcecolor + 4 * i + 4 });
            EXPECT_EQ (source.Colour(), juce::Colour::fromFloatRGBA (colour[0], colour[1], colour[2], colour[3])) << i;
            const auto& left = told[box->name + " source " + std::to_string (i + 1)];
            if (left.size() == 5 && std::string_view (atom_getsym (&left[1])->s_name) == "xyz") {
                EXPECT_EQ (numbersOf ({ left.begin() + 2, left.end() }),
                           (std::vector<float>{ source.position.x, source.position.y, source.position.z }))
                    << "told: source " << i;
            }
        }
        for (std::size_t i = 0; i < plane.GetNumSpeakers(); ++i)
            EXPECT_EQ (pointOf (x.speakerspositions + 3 * i), plane.GetSpeakerPosition (i)) << "speaker " << i;
        EXPECT_EQ (pointOf (x.listenerposition), plane.GetListenerPosition());
        EXPECT_TRUE (isAngle (plane.GetListener().yaw, x.listeneryaw));
        EXPECT_TRUE (isAngle (plane.GetListener().pitch, x.listenerpitch));
        EXPECT_TRUE (isAngle (plane.GetListener().roll, x.listenerroll));
        lumo::PlaneOptions options;
        plane.GetOptions (options);
        EXPECT_EQ (x.zoom, options.zoom);
        EXPECT_EQ (std::string (x.viewpoint->s_name), options.topView ? "top" : "front");
        EXPECT_EQ (lumo::Plane::Grid::NameOf (options.gridMode), x.gridmode->s_name);
        EXPECT_EQ (x.showspeakers != 0, options.speakersVisible);
        EXPECT_EQ (x.showheadphones != 0, options.headphonesVisible);
        EXPECT_EQ (x.showaperture != 0, options.apertureVisible);
        EXPECT_EQ (x.radiusconstraint != 0, options.radiusConstraint);
        EXPECT_EQ (x.circularconstraint != 0, options.circularConstraint);
        const auto& view = plane.GetSurface().viewTransform;
        EXPECT_EQ (x.xoffset, view.xOffset);
        EXPECT_EQ (x.yoffset, view.yOffset);
        EXPECT_EQ (x.zoffset, view.zOffset);
    }

    static void showsValue (const juce::Slider& slider, const halcyra::ValueLabel& label,
                            const halcyra::SliderRange& range, float value, const juce::String& text)
    {
        EXPECT_EQ (static_cast<float> (slider.getValue()), range.stepped (value)) << "slider " << slider.getName();
        EXPECT_EQ (label.shownText(), text) << "label of " << slider.getName();
    }

    void windowAgrees (const HalcyraComponent& component)
    {
        const auto& model = component.getModel();
        auto* tabs = dynamic_cast<juce::TabbedComponent*> (component.getChildComponent (0));
        auto* page = tabs->getCurrentContentComponent();
        if (page == nullptr || ! page->isShowing())
            return;
        if (tabs->getCurrentTabIndex() == 0) {
            const auto sliders = partsOf<juce::Slider> (*page);
            const auto labels = partsOf<halcyra::ValueLabel> (*page);
            ASSERT_EQ (sliders.size(), labels.size());
            showsValue (*sliders[0], *labels[0], halcyra::roomRange, model.roomSize(),
                        juce::String (static_cast<int> (model.roomSize())) + " m^3");
            std::size_t place = 1;
            for (const auto& where : halcyra::timeStructurePlaces) {
                const auto& row = *halcyra::parameterRow (where.number);
                if (row.isSwitch())
                    continue;
                const auto value = model.value (row.number);
                showsValue (*sliders[place], *labels[place], row.range, value,
                            juce::String (value, row.decimals) + row.unit);
                ++place;
            }
            for (const auto* toggle : partsOf<juce::ToggleButton> (*page))
                EXPECT_EQ (toggle->getToggleState(),
                           model.value (toggle->getName() == "air" ? parameter::air : parameter::infinite) != 0);
        }
        if (tabs->getCurrentTabIndex() != 1)
            return;
        HalcyraFilter filter = 0;
        for (auto* column : partsOf<lumo::HLShelfComponent> (*page)) {
            const auto sliders = partsOf<juce::Slider> (*column);
            const auto labels = partsOf<halcyra::ValueLabel> (*column);
            for (std::size_t i = 0; i < halcyra::shelfTable.size(); ++i) {
                const auto& row = halcyra::shelfTable[i];
                const auto value = model.value (cell::ofFilter (filter, i));
                const auto wide = static_cast<double> (value);
                showsValue (
                    *sliders[i], *labels[i], row.range, value,
                    juce::String (
                        (row.isFrequency ? qel::frequencyText (wide, true) : qel::gainText (wide, true)).c_str()));
            }
            ++filter;
        }
    }

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
    Told told;
    std::vector<std::string> bugs;
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
