#include "external/SceneWorkers.h"

#include "external/PerSourceStores.h"
#include "external/PointMirror.h"
#include "gui/plane/PlaneComponent.h"
#include "max/Atoms.h"
#include "max/Guarded.h"

#include <algorithm>

namespace halcyra::scene::workers
{
namespace
{

using orvanemax::Atoms;

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
    orvanemax::guarded (x, [&] { body (Change (argc, argv), *x->plane); });
}

/** The arrays of atoms are null in an object that could not get their memory. */
void storeAtoms (const t_atom* first, std::size_t count, t_atom* array, std::size_t index) noexcept
{
    if (array == nullptr)
        return;
    const std::lock_guard<std::mutex> lock (perSourceStores());
    std::copy_n (first, count, array + index);
}

}

void sourcePosition (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        const auto position = change.point (1);
        storePoint (position, x->sourcespositions + 3 * change.index());
        plane.SetSourcePosition (change.index(), position, change.notify);
    });
}

void sourceColour (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        const auto& atoms = change.atoms;
        storeAtoms (&atoms[1], 4, x->sourcecolor, 4 * change.index());
        plane.SetSourceColour (change.index(), atoms.number (1), atoms.number (2), atoms.number (3), atoms.number (4),
                               change.notify);
    });
}

void sourceName (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        x->name[change.index()] = change.atoms.symbol (1);
        plane.SetSourceLabel (change.index(), change.atoms.symbol (1)->s_name, change.notify);
    });
}

void sourceOrientationMode (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        x->orientationmode[change.index()] = change.atoms.symbol (1);
        plane.SetSourceYawMode (change.index(), qel::String (change.atoms.symbol (1)->s_name));
    });
}

void sourceAperture (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        storeAtoms (&change.atoms[1], 1, x->aperture, change.index());
        plane.SetSourceAperture (change.index(), change.atoms.number (1), change.notify);
    });
}

void sourceYaw (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        storeAtoms (&change.atoms[1], 1, x->yaw, change.index());
        plane.SetSourceYaw (change.index(), change.atoms.number (1), change.notify);
    });
}

void sourceRadius (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        storeAtoms (&change.atoms[1], 1, x->radius, change.index());
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
    apply (x, argc, argv, [] (const Change& change, lumo::PlaneComponent& plane) {
        plane.SetSourceLookAt (change.index(), change.point (1), change.notify);
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
        for (std::size_t i = 0; i < positions.size(); ++i) {
            positions[i] = change.point (3 * i);
            storePoint (positions[i], x->speakerspositions + 3 * i);
        }
        plane.SetSpeakersPositions (positions, change.notify);
    });
}

void listenerPosition (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        storePoint (change.point (0), x->listenerposition);
        plane.SetListenerPosition (change.point (0), change.notify);
    });
}

void listenerYaw (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        x->listeneryaw = change.atoms.number (0);
        plane.SetListenerYaw (x->listeneryaw, change.notify);
    });
}

void listenerPitch (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        x->listenerpitch = change.atoms.number (0);
        plane.SetListenerPitch (x->listenerpitch, change.notify);
    });
}

void listenerRoll (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        x->listenerroll = change.atoms.number (0);
        plane.SetListenerRoll (x->listenerroll, change.notify);
    });
}

void listenerOrientation (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    apply (x, argc, argv, [x] (const Change& change, lumo::PlaneComponent& plane) {
        x->listeneryaw = change.atoms.number (0);
        x->listenerpitch = change.atoms.number (1);
        x->listenerroll = change.atoms.number (2);
        plane.SetListenerOrientation (x->listeneryaw, x->listenerpitch, x->listenerroll, change.notify);
    });
}

}
