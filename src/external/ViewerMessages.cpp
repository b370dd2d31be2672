#include "external/ViewerMessages.h"

#include "external/CoordinateMessages.h"
#include "external/PointMirror.h"
#include "external/SceneUpdates.h"
#include "external/ViewerOptions.h"
#include "gui/plane/PlaneComponent.h"
#include "max/Guarded.h"
#include "max/Modified.h"
#include "max/OrvanemaxSymbols.h"

namespace halcyra
{
namespace
{

using orvanemax::Atoms;
using orvanemax::guarded;
using orvanemax::invalidMessage;
using orvanemax::symbols;
using Words = t_orvanemax_symbols;

t_halcyra_control* control (void* x) noexcept { return static_cast<t_halcyra_control*> (x); }

/** Whether the plane's listeners hear of a message: of all but one that is called `false`. */
bool notifies (t_symbol* selector) noexcept { return selector != symbols().false_; }

/** A name, or a number as its digits. */
t_symbol* nameOf (Atoms atoms, std::size_t index)
{
    return atom_gettype (&atoms[index]) == A_SYM ? atoms.symbol (index)
                                                 : gensym (std::to_string (atoms.integer (index)).c_str());
}

/** One change that a message makes to the object of an index; the atoms are those behind index and key. */
using Change = void (*) (t_halcyra_control* x, t_atom_long index, Atoms values, bool notify);

struct KeyRow
{
    const char* key;
    const char* pattern; // of the values behind the key
    Change change;
    bool isSaved = false;                            // it changes what is saved with the patcher
    bool (*isGood) (const t_symbol* word) = nullptr; // a test of the value beyond the pattern
};

using Rgba = float[4];
void readColour (Atoms values, Rgba& rgba)
{
    for (std::size_t i = 0; i < 4; ++i)
        rgba[i] = values.number (i);
}

/** The numbers come first: with one behind a key, a row for numbers is meant. */
constexpr KeyRow sourceKeys[] = {
    { "aperture", "n", [] (auto* x, auto i, Atoms v, bool n) { scene::setSourceAperture (x, i, v.number (0), n); },
      true },
    { "yaw", "n", [] (auto* x, auto i, Atoms v, bool n) { scene::setSourceYaw (x, i, v.number (0), n); }, true },
    { "radius", "n", [] (auto* x, auto i, Atoms v, bool n) { scene::setSourceRadius (x, i, v.number (0), n); }, true },
    { "showaperture", "n",
      [] (auto* x, auto i, Atoms v, bool) {
          x->plane->SetSourceApertureVisible (static_cast<std::size_t> (i), v.integer (0) != 0);
      } },
    { "visible", "n", [] (auto* x, auto i, Atoms v, bool n) { scene::setSourceVisible (x, i, v.number (0) != 0, n); } },
    { "name", "n", [] (auto* x, auto i, Atoms v, bool n) { scene::setSourceName (x, i, nameOf (v, 0), n); }, true },
    { "showcoordinates", "n",
      [] (auto* x, auto i, Atoms v, bool) {
          x->plane->SetSourceCoordinatesVisible (static_cast<std::size_t> (i), v.number (0) != 0);
      } },
    { "orientationmode", "s",
      [] (auto* x, auto i, Atoms v, bool n) { scene::setSourceOrientationMode (x, i, v.symbol (0), n); }, true,
      scene::isOrientationMode },
    { "name", "s", [] (auto* x, auto i, Atoms v, bool n) { scene::setSourceName (x, i, v.symbol (0), n); }, true },
    { "color", "nnnn",
      [] (auto* x, auto i, Atoms v, bool n) {
          Rgba rgba;
          readColour (v, rgba);
          scene::setSourceColour (x, i, rgba, n);
      },
      true },
    { "lookat", "nnn",
      [] (auto* x, auto i, Atoms v, bool n) {
          scene::setSourceLookAt (x, i, { v.number (0), v.number (1), v.number (2) }, n);
      },
      true },
};

constexpr KeyRow speakerKeys[] = {
    { "name", "s", [] (auto* x, auto i, Atoms v, bool n) { scene::setSpeakerName (x, i, v.symbol (0), n); } },
    { "name", "l", [] (auto* x, auto i, Atoms v, bool n) { scene::setSpeakerName (x, i, nameOf (v, 0), n); } },
    { "color", "nnnn",
      [] (auto* x, auto i, Atoms v, bool n) {
          Rgba rgba;
          readColour (v, rgba);
          scene::setSpeakerColour (x, i, rgba, n);
      } },
    { "visible", "n",
      [] (auto* x, auto i, Atoms v, bool n) { scene::setSpeakerVisible (x, i, v.number (0) != 0, n); } },
};

constexpr KeyRow areaKeys[] = {
    { "clear", "", [] (auto* x, auto i, Atoms, bool) { x->plane->ClearArea (static_cast<std::size_t> (i)); } },
    { "color", "nnnn",
      [] (auto* x, auto i, Atoms v, bool) {
          x->plane->SetAreaColour (
              static_cast<std::size_t> (i),
              juce::Colour::fromFloatRGBA (v.number (0), v.number (1), v.number (2), v.number (3)));
      } },
    { "name", "s",
      [] (auto* x, auto i, Atoms v, bool) {
          x->plane->SetAreaLabel (static_cast<std::size_t> (i), v.symbol (0)->s_name);
      } },
    { "name", "l",
      [] (auto* x, auto i, Atoms v, bool) {
          x->plane->SetAreaLabel (static_cast<std::size_t> (i), nameOf (v, 0)->s_name);
      } },
    { "visible", "n",
      [] (auto* x, auto i, Atoms v, bool) {
          x->plane->SetAreaVisible (static_cast<std::size_t> (i), v.number (0) != 0);
      } },
};

constexpr KeyRow anchorKeys[] = {
    { "name", "s",
      [] (auto* x, auto i, Atoms v, bool) {
          x->plane->SetAnchorName (static_cast<std::size_t> (i), v.symbol (0)->s_name);
      } },
    { "name", "l",
      [] (auto* x, auto i, Atoms v, bool) {
          x->plane->SetAnchorName (static_cast<std::size_t> (i), nameOf (v, 0)->s_name);
      } },
};

/** Makes the change that the key asks for; false if there is no such key, or it wants other values. */
template <std::size_t size>
bool changeByKey (t_halcyra_control* x, const KeyRow (&rows)[size], t_atom_long index, Atoms message, bool notify)
{
    const auto behindIndex = message.from (1);
    if (! behindIndex.fit ("s"))
        return false;
    const std::string_view key = behindIndex.symbol (0)->s_name;
    const auto values = behindIndex.from (1);
    for (const auto& row : rows)
        if (key == row.key && values.fit (row.pattern) && (row.isGood == nullptr || row.isGood (values.symbol (0)))) {
            row.change (x, index, values, notify);
            if (row.isSaved)
                scene::notifyModified (x);
            return true;
        }
    return false;
}

/** The index of a message, counted from 0; -1, and told, if there is no such object. */
t_atom_long indexOf (t_halcyra_control* x, Atoms message, t_atom_long count, const char* complaint)
{
    const auto index = message.integer (0);
    if (index >= 1 && index <= count)
        return index - 1;
    orvanemax::tellError (x, complaint + std::to_string (index));
    return -1;
}

}

void source (void* object, t_symbol* selector, t_clong argc, t_atom* argv)
{
    auto* x = control (object);
    guarded (x, [=] {
        const Atoms atoms (argc, argv);
        if (! atoms.fit ("ls"))
            return invalidMessage (x, "invalid message : source", atoms);
        const auto index = indexOf (x, atoms, x->numsources, "invalid source index ");
        if (index < 0 || changeByKey (x, sourceKeys, index, atoms, notifies (selector)))
            return;
        auto position = scene::sourceInMirror (x, index);
        if (! parseOneSource (x, position, atoms))
            return invalidMessage (x, "invalid message : source", atoms);
        scene::setSourcePosition (x, index, position, notifies (selector));
    });
}

void speaker (void* object, t_symbol* selector, t_clong argc, t_atom* argv)
{
    auto* x = control (object);
    guarded (x, [=] {
        const Atoms atoms (argc, argv);
        if (! atoms.fit ("ls"))
            return invalidMessage (x, "invalid message : speaker", atoms);
        const auto index = indexOf (x, atoms, x->numspeakers, "invalid speaker index ");
        if (index < 0 || changeByKey (x, speakerKeys, index, atoms, notifies (selector)))
            return;
        auto positions = scene::speakersInMirror (x);
        if (! parseOneSpeaker (x, positions[static_cast<std::size_t> (index)], atoms))
            return invalidMessage (x, "invalid message : speaker", atoms);
        scene::storeSpeakersInMirror (x, positions);
        scene::sendSpeakers (x, notifies (selector));
    });
}

void speakers (void* object, t_symbol* selector, t_clong argc, t_atom* argv)
{
    auto* x = control (object);
    guarded (x, [=] {
        const Atoms atoms (argc, argv);
        if (x->numspeakers < 1)
            return;
        auto positions = scene::speakersInMirror (x);
        if (! parseAllSpeakers (x, positions, atoms))
            return invalidMessage (x, "invalid message : speakers", atoms);
        scene::storeSpeakersInMirror (x, positions);
        scene::sendSpeakers (x, notifies (selector));
    });
}

namespace
{

struct ListenerAngle
{
    SymbolField key;
    float t_halcyra_control::*mirror;
    void (*send) (t_halcyra_control* x, bool notify);
};

constexpr ListenerAngle listenerAngles[] = {
    { &Words::yaw, &t_halcyra_control::listeneryaw, scene::sendListenerYaw },
    { &Words::pitch, &t_halcyra_control::listenerpitch, scene::sendListenerPitch },
    { &Words::roll, &t_halcyra_control::listenerroll, scene::sendListenerRoll },
};

bool turnListener (t_halcyra_control* x, Atoms atoms, bool notify)
{
    const auto* key = atoms.fit ("sn") ? atoms.symbol (0) : nullptr;
    for (const auto& angle : listenerAngles)
        if (key == orvanemax::symbol (angle.key)) {
            x->*angle.mirror = atoms.number (1);
            angle.send (x, notify);
            return true;
        }
    if (key != symbols().rpy || ! atoms.fit ("snnn"))
        return false;
    x->listenerroll = atoms.number (1);
    x->listenerpitch = atoms.number (2);
    x->listeneryaw = atoms.number (3);
    scene::sendListenerOrientation (x, notify);
    return true;
}

}

void listener (void* object, t_symbol* selector, t_clong argc, t_atom* argv)
{
    auto* x = control (object);
    guarded (x, [=] {
        const Atoms atoms (argc, argv);
        if (turnListener (x, atoms, notifies (selector)))
            return scene::notifyModified (x);
        auto position = pointIn (x->listenerposition);
        if (! parseOnePoint (x, position, atoms))
            return invalidMessage (x, "invalid message : listener", atoms);
        storePoint (position, x->listenerposition);
        scene::sendListenerPosition (x, notifies (selector));
        orvanemax::notifyModified (x);
    });
}

void area (void* object, t_symbol*, t_clong argc, t_atom* argv)
{
    auto* x = control (object);
    guarded (x, [=] {
        const Atoms atoms (argc, argv);
        if (! atoms.fit ("l"))
            return invalidMessage (x, "invalid message : areas", atoms);
        const auto index = indexOf (x, atoms, x->numareas, "invalid areas index ");
        if (index < 0 || changeByKey (x, areaKeys, index, atoms, true))
            return;
        qel::Point3Array outline;
        if (! parseManyPoints (x, outline, atoms.from (1)))
            return invalidMessage (x, "invalid message : areas", atoms.from (1));
        x->plane->SetAreaPoints (static_cast<std::size_t> (index), outline);
    });
}

void anchor (void* object, t_symbol*, t_clong argc, t_atom* argv)
{
    auto* x = control (object);
    guarded (x, [=] {
        const Atoms atoms (argc, argv);
        if (! atoms.fit ("l"))
            return invalidMessage (x, "invalid message : areas", atoms); // the wording of areas serves anchors too
        const auto index = indexOf (x, atoms, x->numanchors, "invalid anchor index ");
        if (index < 0 || changeByKey (x, anchorKeys, index, atoms, true))
            return;
        qel::Point3Array points;
        if (! parseManyPoints (x, points, atoms.from (1)) || points.size() != 1)
            return invalidMessage (x, "invalid message : areas", atoms.from (1));
        x->plane->SetAnchorPosition (static_cast<std::size_t> (index), points[0]);
    });
}

void adjustZoom (void* object)
{
    auto* x = control (object);
    guarded (x, [=] {
        x->plane->AutoZoom (true);
        mirrorViewerOptions (x);
        orvanemax::notifyModified (x);
    });
}

void rotate (void* object, t_symbol*, t_clong argc, t_atom* argv)
{
    auto* x = control (object);
    guarded (x, [=] {
        const Atoms atoms (argc, argv);
        const auto index = atoms.integer (0);
        const auto yaw = atoms.number (1), pitch = atoms.number (2), roll = atoms.number (3);
        if (index < 0) // the plane passes over one that is past the end
            return orvanemax::tellError (x, "invalid source index " + std::to_string (index));
        if (index == 0)
            x->plane->RotateAllSources (yaw, pitch, roll, true);
        else
            x->plane->RotateSource (static_cast<std::size_t> (index - 1), yaw, pitch, roll, true);
        orvanemax::notifyModified (x);
    });
}

}
