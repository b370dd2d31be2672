#include "ControlFuzz.h"
#include "FuzzBytes.h"
#include "host/bench/WindowDriver.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <algorithm>

namespace
{

constexpr const char* goodMessages[] = {
    "bang",
    "gain 3",
    "reverb tr0 4",
    "roomsize 800.",
    "direct 0 -3 0 -3 200 3000",
    "early width 50",
    "cluster start 60",
    "open",
    "wclose",
    "source 1 aed 30 0 1",
    "source 2 x++ 0.5",
    "source 1 color 1 0 0 1",
    "source 1 name left",
    "source 1 lookat 0 0 0",
    "source 2 orientationmode barycenter",
    "speaker 1 xyz 1 2 3",
    "speakers aed 0 0 1 120 0 1 240 0 1",
    "listener rpy 1 2 3",
    "listener yaw 9",
    "area 1 xy 0 0 1 0 1 1",
    "area 1 name stage",
    "anchor 1 xyz 0 0 1",
    "numareas 2",
    "numanchors 2",
    "zoom 2",
    "zoomlock 1",
    "autozoom 1",
    "viewpoint front",
    "gridmode polar",
    "numangulardivisions 12",
    "gridlines 10",
    "gridspacing 0.5",
    "showsourceslevels 1",
    "sourceslevels -3 -60",
    "speakerslevels -3 -60 0",
    "showspeakerstriangulation 1",
    "showspeakershull 1",
    "showaperture 1",
    "showshoebox 1",
    "shoeboxcorners -5 -5 -5 5 5 5",
    "circularconstraint 1",
    "radiusconstraint 1",
    "backgroundimage a.png",
    "sourcespositions 1 2 3 4 5 6",
    "speakerspositions 1 2 3 4 5 6 7 8 9",
    "yaw 10 20",
    "radius 0.1 0.2",
    "sourcecolor 1 0 0 1 0 1 0 1",
    "store a",
    "recall a",
    "xsnapshot a b 0.5",
    "writesnapshot a.xml",
    "readsnapshot a.xml",
    "exportdict a.json",
    "dump",
    "dump gain zoom",
    "dumpdict gain room",
    "dictionary saved",
    "reset",
    "rotate 0 10 0 0",
    "adjustzoom",
    "defer 0",
    "display 0",
    "defer 1",
    "display 1",
    "format xyz",
    "showfps 1",
    "useopengl 1",
    "windowtitle hall",
    "windowtopleft 5 6",
    "version",
    "postattributes",
};

constexpr const char* keys[] = { "w",      "ctrl + w",     "cursor left", "cursor up", "escape", "delete",
                                 "return", "shift + home", "tab",         "a",         "5",      "alt + z" };

/** A patch of a few objects, driven by an input. */
class Session
{
public:
    explicit Session (FuzzBytes& bytes)
        : input (bytes), fuzz (bytes.choice (2) == 0 ? bench::DeferMedium::queue : bench::DeferMedium::now)
    {
        make();
    }

    void run()
    {
        while (! input.isOver())
            step();
        settle();
        for (const auto& name : fuzz.patch.names())
            ControlFuzz::requireFiniteState (*fuzz.patch.find (name));
    }

private:
    void step()
    {
        if (fuzz.patch.names().empty())
            make();
        constexpr void (
            Session::*steps[])() = { &Session::sendGood,  &Session::sendGood, &Session::sendGood, &Session::sendAny,
                                     &Session::sendAny,   &Session::settle,   &Session::settle,   &Session::point,
                                     &Session::point,     &Session::point,    &Session::turnPage, &Session::press,
                                     &Session::attribute, &Session::paint,    &Session::rare,     &Session::paint };
        (this->*input.oneOf (steps))();
    }

    bench::Box& box()
    {
        const auto names = fuzz.patch.names();
        return *fuzz.patch.find (input.oneOf (names));
    }

    bench::Thread thread() { return input.choice (8) == 7 ? bench::Thread::scheduler : bench::Thread::main; }

    void settle() { fuzz.patch.settle(); }

    /** Paints a small part of each window, as when it is uncovered. */
    void paint()
    {
        constexpr int side = 48;
        const auto x = 4 * static_cast<int> (input.byte()), y = 2 * static_cast<int> (input.byte());
        juce::Image part (juce::Image::RGB, side, side, false, juce::SoftwareImageType());
        for (int i = 0; i < juce::ComponentPeer::getNumPeers(); ++i) {
            juce::Graphics g (part);
            g.setOrigin (-x, -y);
            juce::ComponentPeer::getPeer (i)->getComponent().paintEntireComponent (g, true);
        }
    }

    /** A valid message, except for what may be replaced, omitted or repeated. */
    void sendGood()
    {
        auto message = bench::messageOf (bench::wordsOf (input.oneOf (goodMessages)));
        auto& atoms = message.atoms;
        for (auto changes = input.choice (4); changes > 0 && ! atoms.empty(); --changes) {
            const auto index = input.choice (atoms.size());
            switch (input.choice (6)) {
            case 0:
                atoms.erase (atoms.begin() + static_cast<std::ptrdiff_t> (index));
                break;
            case 1:
                atoms.push_back (atoms[index]);
                break;
            default:
                atoms[index] = input.atom();
            }
        }
        fuzz.patch.send (box(), message.selector, atoms, thread());
    }

    void sendAny()
    {
        auto& target = box();
        auto* selector = gensym (input.oneOf (ControlFuzz::selectors()).c_str());
        auto atoms = input.atoms (10);
        if (input.byte() == 255 && ! atoms.empty())
            atoms.resize (10000, atoms.back());
        fuzz.patch.send (target, selector, atoms, thread());
    }

    void point()
    {
        using Action = bench::PointerEvent::Action;
        constexpr Action actions[] = { Action::down, Action::drag, Action::up,          Action::drag,
                                       Action::move, Action::up,   Action::doubleClick, Action::wheel };
        bench::PointerEvent event;
        event.action = input.oneOf (actions);
        event.x = static_cast<float> (input.byte()) * 3.7f;
        event.y = static_cast<float> (input.byte()) * 1.8f;
        const auto flags = input.byte();
        event.wheelDelta = (flags & 1) != 0 ? 0.2f : -0.2f;
        event.shift = flags % 8 == 2;
        event.ctrl = flags % 8 == 4;
        event.alt = flags % 8 == 6;
        event.right = flags % 16 == 7;
        bench::windowDriver()->pointer (box().object, event);
    }

    void turnPage() { bench::windowDriver()->turnPage (box().object, static_cast<int> (input.choice (4))); }
    void press() { bench::windowDriver()->key (box().object, input.oneOf (keys)); }

    void attribute()
    {
        auto& target = box();
        const auto& name = input.oneOf (ControlFuzz::attributes());
        bench::setAttribute (target, name, input.atoms (6));
    }

    void state()
    {
        auto values = bench::stateOf (box()).value_or (bench::Atoms());
        for (auto changes = input.choice (4); changes > 0 && ! values.empty(); --changes)
            values[input.choice (values.size())] = input.atom();
        bench::setState (box(), values);
    }

    void rare()
    {
        switch (input.choice (9)) {
        case 0:
            return make();
        case 1:
            return fuzz.patch.free (&box());
        case 2:
            return fuzz.patch.wait (static_cast<int> (input.choice (12)));
        case 3:
            return fuzz.patch.hold();
        case 4:
            return fuzz.patch.answerDialog (input.choice (2) == 0 ? std::nullopt : std::make_optional ("a.xml"));
        case 5:
            return bench::putEntry ("saved", input.oneOf (ControlFuzz::attributes()), input.atoms (6));
        case 6:
            return connect();
        case 7:
            return state(); // as long as many other steps together
        default:
            return fuzz.patch.release();
        }
    }

    /** Only to a newer one: no loops. */
    void connect()
    {
        auto names = fuzz.patch.names();
        if (names.size() < 2)
            return;
        fuzz.patch.connect (*fuzz.patch.find (names.front()), static_cast<int> (input.choice (3)),
                            *fuzz.patch.find (names.back()));
    }

    void make()
    {
        if (fuzz.patch.names().size() > 2)
            return;
        constexpr int sizes[] = { 1, 2, 3, 8, 64, 0, -1, 100 };
        std::vector<bench::Word> words = { { "halcyra~.control" } };
        for (const auto* size : { "@numsources", "@numspeakers", "@numinternals" }) {
            words.push_back ({ size });
            words.push_back ({ std::to_string (input.oneOf (sizes)) });
        }
        for (auto more = input.choice (4); more > 0; --more) {
            words.push_back ({ "@" + input.oneOf (ControlFuzz::attributes()) });
            for (const auto& atom : input.atoms (4))
                words.push_back ({ bench::textOf (bench::Atoms{ atom }) });
        }
        fuzz.patch.make ("box" + std::to_string (++made), words);
    }

    FuzzBytes& input;
    const ScratchFolder folder;
    ControlFuzz fuzz;
    int made = 0;
};

}

/** A long session with arbitrary messages, clicks, keys, deletions and creations in any order: nothing crashes, and the
    remaining objects' state stays finite. */
extern "C" int LLVMFuzzerTestOneInput (const std::uint8_t* data, std::size_t size)
{
    FuzzBytes input (data, size);
    Session (input).run();
    return 0;
}
