#include "external/HalcyraControl.h"

#include "common/OrvaneDspException.h"
#include "external/ControlAttributes.h"
#include "external/DeferredMessages.h"
#include "external/MaxHalcyraListener.h"
#include "external/Registration.h"
#include "external/SceneMirror.h"
#include "external/SceneUpdates.h"
#include "external/ViewerAttributes.h"
#include "gui/verb/HalcyraComponent.h"
#include "max/Atoms.h"
#include "max/DictionaryState.h"
#include "max/Guarded.h"
#include "max/HostFunction.h"
#include "max/MaxMspJuceWindowManager.h"
#include "max/OrvanemaxSymbols.h"

namespace
{

using namespace halcyra;
using orvanemax::guarded;

struct OwnedArray
{
    t_atom* t_halcyra_control::*atoms;
    t_clong size;
};

/** In order of allocation and release. */
constexpr OwnedArray ownedArrays[] = {
    { &t_halcyra_control::radius, maxSources },         { &t_halcyra_control::yaw, maxSources },
    { &t_halcyra_control::aperture, maxSources },       { &t_halcyra_control::sourcecolor, maxColours },
    { &t_halcyra_control::speakerslevels, maxSources }, { &t_halcyra_control::sourceslevels, maxSources },
};

/** Logs an array that could not be allocated; the object works without it. */
void allocateArrays (t_halcyra_control* x)
{
    guarded (x, [x] {
        for (const auto& array : ownedArrays) {
            const auto bytes = static_cast<t_ptr_size> (array.size) * sizeof (t_atom);
            x->*array.atoms = reinterpret_cast<t_atom*> (sysmem_newptr (bytes));
            if (x->*array.atoms == nullptr)
                throw qel::Exception ("error allocating memory for attribute", { "ambrel.viewer.common", __LINE__ });
        }
    });
}

/** Initialises the struct before the first attribute is read. */
void fillDefaults (t_halcyra_control* x)
{
    fillControlDefaults (x);
    fillViewerDefaults (x);
    for (auto& filter : x->filters)
        filter = HLShelfParameters();
    x->display = 1;
    x->defer = 1;
}

/** Runs behind everything queued when the turn began. */
void endTurn (t_halcyra_control* x, t_symbol*, short, t_atom*) { x->component->endTurn(); }

/** Creates the component, its listeners and the window manager; logs and returns false on failure. */
bool makeParts (t_halcyra_control* x)
{
    guarded (x, [x] {
        x->component = new HalcyraComponent (static_cast<std::uint32_t> (x->numsources),
                                             static_cast<std::uint32_t> (x->numspeakers),
                                             static_cast<std::uint32_t> (x->numinternals));
        x->plane = x->component->getPlane();
        x->component->setTurnWaker ([x] { defer_low (x, orvanemax::hostFunction<endTurn>(), nullptr, 0, nullptr); });
        x->listener = new MaxHalcyraListener (x);
        x->scene = new halcyra::SceneMirror (x);
        x->window = new MaxMspJuceWindowManager (&x->object, x->component, false);
    });
    return x->component != nullptr && x->plane != nullptr && x->listener != nullptr && x->scene != nullptr &&
           x->window != nullptr;
}

void hideApertures (t_halcyra_control* x)
{
    t_atom off{};
    atom_setlong (&off, 0);
    object_attr_setvalueof (x, orvanemax::symbols().showaperture, 1, &off);
}

/** The first one created is the rightmost. */
void makeOutlets (t_halcyra_control* x)
{
    object_obex_store (x, orvanemax::dumpout(), static_cast<t_object*> (outlet_new (x, nullptr)));
    x->outlet = outlet_new (x, nullptr);
}

void replayParameters (t_halcyra_control* x)
{
    guarded (x, [x] { x->component->sendAllParameters(); });
}

}

void* halcyra_control_new (t_symbol*, t_clong argc, t_atom* argv)
{
    auto* x = static_cast<t_halcyra_control*> (object_alloc (controlClass()));
    if (x == nullptr) {
        object_error (nullptr, "couldnt allocate memory");
        return nullptr;
    }
    allocateArrays (x);
    fillDefaults (x);
    const bool made = orvanemax::processEntries (x, argc, argv, { "numsources", "numspeakers", "numinternals" });
    if (! made || ! makeParts (x)) {
        object_error (&x->object, "couldnt create object");
        return nullptr;
    }
    x->constructed = true;
    if (! orvanemax::processDictionary (x, argc, argv, true))
        return nullptr;
    hideApertures (x); // a new object starts without apertures, whatever was saved
    makeOutlets (x);
    defer_medium (x, orvanemax::hostFunction<scene::initialise>(), nullptr, 0, nullptr);
    replayParameters (x);
    return x;
}

void halcyra_control_free (t_halcyra_control* x)
{
    for (const auto& array : ownedArrays)
        if (x->*array.atoms != nullptr)
            sysmem_freeptr (x->*array.atoms);
    if (x->listener != nullptr)
        x->listener->leaveOwner();
    if (x->scene != nullptr)
        x->scene->leaveOwner();
    if (x->window != nullptr)
        x->window->leaveOwner();
    if (x->component != nullptr)
        x->component->setTurnWaker ({});
    orvanemax::objectGoes (x, [window = x->window, listener = x->listener, scene = x->scene, component = x->component] {
        delete window;
        if (component != nullptr) {
            delete scene;
            delete listener;
            delete component;
        }
    });
}

void halcyra_control_assist (t_halcyra_control*, void*, t_clong io, t_clong index, char* text)
{
    const auto* help = io == ASSIST_INLET ? "inlet" : index == 0 ? "outlet" : "dumpout";
    strncpy_zero (text, help, MAX_ASSIST_CHARS);
}

void halcyra_control_open (void* object)
{
    const auto* x = static_cast<t_halcyra_control*> (object);
    x->window->open (x->display != 0);
}

void halcyra_control_wclose (void* object) { static_cast<t_halcyra_control*> (object)->window->close(); }
