#include "external/ViewerMessages.h"

#include "external/CoordinateMessages.h"
#include "external/PointMirror.h"
#include "external/SceneUpdates.h"
#include "external/ViewerOptions.h"
#include "gui/plane/PlaneComponent.h"
#include "max/Modified.h"
#include "max/OrvanemaxSymbols.h"

namespace halcyra
{
namespace
{

using orvanemax::Atoms;
using orvanemax::invalidMessage;
using orvanemax::symbols;

t_halcyra_control* control (void* x) noexcept { return static_cast<t_halcyra_control*> (x); }

/** Whether a message notifies the plane's listeners: all but the one named `false`. */
bool notifies (t_symbol* selector) noexcept { return selector != symbols().false_; }

/** A message's index, converted to start at 0; logs and returns -1 if there is no such object. */
t_atom_long indexOf (t_halcyra_control* x, Atoms message, t_atom_long count, const char* complaint)
{
    const auto index = message.integer (0);
    if (index >= 1 && index <= count)
        return index - 1;
    orvanemax::tellError (x, complaint + std::to_string (index));
    return -1;
}

}

void changeSource (void* object, t_symbol* selector, t_clong argc, t_atom* argv)
{
    auto* x = control (object);
    const Atoms atoms (argc, argv);
    if (! atoms.fit ("ls"))
        return invalidMessage (x, "invalid message : source", atoms);
    const auto index = indexOf (x, atoms, x->numsources, "invalid source index ");
    if (index < 0 || scene::updateByKey (x, scene::sourceProperties(), index, atoms.from (1), notifies (selector)))
        return;
    auto position = scene::sourceInMirror (x, index);
    if (! parseOneSource (x, position, atoms))
        return invalidMessage (x, "invalid message : source", atoms);
    scene::moveSource (x, index, position, notifies (selector));
}

void changeSpeaker (void* object, t_symbol* selector, t_clong argc, t_atom* argv)
{
    auto* x = control (object);
    const Atoms atoms (argc, argv);
    if (! atoms.fit ("ls"))
        return invalidMessage (x, "invalid message : speaker", atoms);
    const auto index = indexOf (x, atoms, x->numspeakers, "invalid speaker index ");
    if (index < 0 || scene::updateByKey (x, scene::speakerProperties(), index, atoms.from (1), notifies (selector)))
        return;
    auto positions = scene::speakersInMirror (x);
    if (! parseOneSpeaker (x, positions[static_cast<std::size_t> (index)], atoms))
        return invalidMessage (x, "invalid message : speaker", atoms);
    scene::moveSpeakers (x, positions, notifies (selector));
}

void changeSpeakers (void* object, t_symbol* selector, t_clong argc, t_atom* argv)
{
    auto* x = control (object);
    const Atoms atoms (argc, argv);
    if (x->numspeakers < 1)
        return;
    auto positions = scene::speakersInMirror (x);
    if (! parseAllSpeakers (x, positions, atoms))
        return invalidMessage (x, "invalid message : speakers", atoms);
    scene::moveSpeakers (x, positions, notifies (selector));
}

void changeListener (void* object, t_symbol* selector, t_clong argc, t_atom* argv)
{
    auto* x = control (object);
    const Atoms atoms (argc, argv);
    if (scene::updateByKey (x, scene::listenerProperties(), 0, atoms, notifies (selector)))
        return;
    auto position = pointIn (x->listenerposition);
    if (! parseOnePoint (x, position, atoms))
        return invalidMessage (x, "invalid message : listener", atoms);
    scene::moveListener (x, position, notifies (selector));
    scene::notifyModified (x);
}

void changeArea (void* object, t_symbol*, t_clong argc, t_atom* argv)
{
    auto* x = control (object);
    const Atoms atoms (argc, argv);
    if (! atoms.fit ("l"))
        return invalidMessage (x, "invalid message : areas", atoms);
    const auto index = indexOf (x, atoms, x->numareas, "invalid areas index ");
    if (index < 0 || scene::updateByKey (x, scene::areaProperties(), index, atoms.from (1), true))
        return;
    qel::Point3Array outline;
    if (! parseManyPoints (x, outline, atoms.from (1)))
        return invalidMessage (x, "invalid message : areas", atoms.from (1));
    x->plane->SetAreaPoints (static_cast<std::size_t> (index), outline);
}

void changeAnchor (void* object, t_symbol*, t_clong argc, t_atom* argv)
{
    auto* x = control (object);
    const Atoms atoms (argc, argv);
    if (! atoms.fit ("l"))
        return invalidMessage (x, "invalid message : areas", atoms); // anchors use the wording for areas too
    const auto index = indexOf (x, atoms, x->numanchors, "invalid anchor index ");
    if (index < 0 || scene::updateByKey (x, scene::anchorProperties(), index, atoms.from (1), true))
        return;
    qel::Point3Array points;
    if (! parseManyPoints (x, points, atoms.from (1)) || points.size() != 1)
        return invalidMessage (x, "invalid message : areas", atoms.from (1));
    x->plane->SetAnchorPosition (static_cast<std::size_t> (index), points[0]);
}

void adjustZoom (void* object)
{
    auto* x = control (object);
    x->plane->AutoZoom (true);
    mirrorViewerOptions (x);
    orvanemax::notifyModified (x);
}

void rotateSources (void* object, t_symbol*, t_clong argc, t_atom* argv)
{
    auto* x = control (object);
    const Atoms atoms (argc, argv);
    const auto index = atoms.integer (0);
    const auto yaw = atoms.number (1), pitch = atoms.number (2), roll = atoms.number (3);
    if (index < 0) // the plane ignores indices past the end
        return orvanemax::tellError (x, "invalid source index " + std::to_string (index));
    if (index == 0)
        x->plane->RotateAllSources (yaw, pitch, roll, true);
    else
        x->plane->RotateSource (static_cast<std::size_t> (index - 1), yaw, pitch, roll, true);
    orvanemax::notifyModified (x);
}

}
