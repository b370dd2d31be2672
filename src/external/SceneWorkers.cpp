#include "external/SceneWorkers.h"

#include "external/PerSourceStores.h"
#include "external/SceneMirror.h"
#include "gui/plane/PlaneComponent.h"
#include "max/Atoms.h"
#include "max/Guarded.h"
#include "max/Modified.h"

#include <utility>

namespace halcyra::scene::workers
{
namespace
{

using orvanemax::Atoms;
using orvanemax::symbols;

/** A packet taken apart. */
struct Change
{
    Change (short argc, t_atom* argv) : atoms (argc, argv), notify (atoms.integer (atoms.size() - 1) != 0) {}

    [[nodiscard]] std::size_t index() const noexcept { return static_cast<std::size_t> (atoms.integer (0)); }
    [[nodiscard]] qel::Point3 point (std::size_t first) const noexcept
    {
        return { atoms.number (first), atoms.number (first + 1), atoms.number (first + 2) };
    }

    Atoms atoms;
    bool notify;
};

/** Runs a worker's body on its change and its plane. */
template <typename Body>
void apply (t_halcyra_control* x, short argc, t_atom* argv, Body&& body)
{
    orvanemax::guarded (x, [&] {
        const SceneMirror::Update update (*x->scene);
        body (Change (argc, argv), *x->plane);
    });
}

/** Stores atoms and touches the attribute if they were other. The arrays of atoms are null in an object that could not
    get their memory. */
void storeAtoms (t_halcyra_control* x, Atoms atoms, t_atom* array, std::size_t index, t_symbol* attribute)
{
    if (array == nullptr)
        return;
    bool differ = false;
    {
        const std::lock_guard<std::mutex> lock (perSourceStores());
        for (std::size_t i = 0; i < atoms.size(); ++i) {
            const auto value = static_cast<double> (atoms.number (i));
            differ = differ || atom_getfloat (&array[index + i]) != value;
            atom_setfloat (&array[index + i], value);
        }
    }
    if (differ)
        touchAttribute (x, attribute);
}

void storeWord (t_halcyra_control* x, t_symbol*& stored, t_symbol* word, t_symbol* attribute)
{
    if (std::exchange (stored, word) != word)
        touchAttribute (x, attribute);
}

}

void sourcePosition (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        plane.SetSourcePosition (change.index(), change.point (1), change.notify);
        mirrorSourcePosition (x, change.index());
        touchAttribute (x, symbols().sourcespositions); // the message has stored its wish already
        mirrorSourceYaw (x, change.index());            // which may follow, and not every mode tells of it
    });
}

void sourceColour (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        const auto& atoms = change.atoms;
        storeAtoms (x, { 4, &atoms[1] }, x->sourcecolor, 4 * change.index(), symbols().sourcecolor);
        plane.SetSourceColour (change.index(), atoms.number (1), atoms.number (2), atoms.number (3), atoms.number (4),
                               change.notify);
    });
}

void sourceName (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        storeWord (x, x->name[change.index()], change.atoms.symbol (1), symbols().name);
        plane.SetSourceLabel (change.index(), change.atoms.symbol (1)->s_name, change.notify);
    });
}

void sourceOrientationMode (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        storeWord (x, x->orientationmode[change.index()], change.atoms.symbol (1), symbols().orientationmode);
        plane.SetSourceYawMode (change.index(), qel::String (change.atoms.symbol (1)->s_name));
        mirrorSourceYaw (x, change.index());
    });
}

void sourceAperture (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        plane.SetSourceAperture (change.index(), change.atoms.number (1), change.notify);
        mirrorSourceAperture (x, change.index(), change.atoms.number (1));
    });
}

void sourceYaw (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        plane.SetSourceYaw (change.index(), change.atoms.number (1), change.notify);
        mirrorSourceYaw (x, change.index(), change.atoms.number (1));
    });
}

void sourceRadius (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        storeAtoms (x, { 1, &change.atoms[1] }, x->radius, change.index(), symbols().radius);
        plane.SetSourceRadius (change.index(), change.atoms.number (1), change.notify);
    });
}

void sourceVisible (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [] (const Change& change, lumo::PlaneComponent& plane) {
        plane.SetSourceVisible (change.index(), change.atoms.integer (1) != 0, change.notify);
    });
}

void sourceLookAt (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        plane.SetSourceLookAt (change.index(), change.point (1), change.notify);
        mirrorSourceYaw (x, change.index());
    });
}

void speakerName (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [] (const Change& change, lumo::PlaneComponent& plane) {
        plane.SetSpeakerName (change.index(), change.atoms.symbol (1)->s_name, change.notify);
    });
}

void speakerColour (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [] (const Change& change, lumo::PlaneComponent& plane) {
        const auto& atoms = change.atoms;
        plane.SetSpeakerColour (change.index(), atoms.number (1), atoms.number (2), atoms.number (3), atoms.number (4),
                                change.notify);
    });
}

void speakerVisible (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [] (const Change& change, lumo::PlaneComponent& plane) {
        plane.SetSpeakerVisible (change.index(), change.atoms.integer (1) != 0, change.notify);
    });
}

void speakersPositions (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        qel::Point3Array positions (static_cast<std::size_t> (x->numspeakers));
        for (std::size_t i = 0; i < positions.size(); ++i)
            positions[i] = change.point (3 * i);
        plane.SetSpeakersPositions (positions, change.notify);
        mirrorSpeakers (x);
        touchAttribute (x, symbols().speakerspositions);
    });
}

void listenerPosition (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        plane.SetListenerPosition (change.point (0), change.notify);
        mirrorListenerPosition (x);
        touchAttribute (x, symbols().listenerposition);
    });
}

namespace
{

using SetAngle = void (lumo::PlaneComponent::*) (float degrees, bool notify);

template <SetAngle set, float t_halcyra_control::*mirror>
void listenerAngle (t_halcyra_control* x, short argc, t_atom* argv, t_symbol* attribute)
{
    apply (x, argc, argv, [x, attribute] (const Change& change, lumo::PlaneComponent& plane) {
        x->*mirror = change.atoms.number (0);
        (plane.*set) (x->*mirror, change.notify);
        mirrorListenerAngles (x);
        touchAttribute (x, attribute);
    });
}

}

void listenerYaw (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    listenerAngle<&lumo::PlaneComponent::SetListenerYaw, &t_halcyra_control::listeneryaw> (x, argc, argv,
                                                                                           symbols().listeneryaw);
}

void listenerPitch (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    listenerAngle<&lumo::PlaneComponent::SetListenerPitch, &t_halcyra_control::listenerpitch> (x, argc, argv,
                                                                                               symbols().listenerpitch);
}

void listenerRoll (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    listenerAngle<&lumo::PlaneComponent::SetListenerRoll, &t_halcyra_control::listenerroll> (x, argc, argv,
                                                                                             symbols().listenerroll);
}

void listenerOrientation (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        x->listeneryaw = change.atoms.number (0);
        x->listenerpitch = change.atoms.number (1);
        x->listenerroll = change.atoms.number (2);
        plane.SetListenerOrientation (x->listeneryaw, x->listenerpitch, x->listenerroll, change.notify);
        mirrorListenerAngles (x);
        for (auto* attribute : { symbols().listeneryaw, symbols().listenerpitch, symbols().listenerroll })
            touchAttribute (x, attribute);
    });
}

void radiusConstraint (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [] (const Change& change, lumo::PlaneComponent& plane) {
        plane.SetRadiusConstraint (change.atoms.integer (0) != 0);
    });
}

void modified (t_halcyra_control* x, t_symbol*, short, t_atom*) { orvanemax::notifyModified (x); }

}
