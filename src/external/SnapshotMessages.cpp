#include "external/SnapshotMessages.h"

#include "external/ProductVersion.h"
#include "gui/plane/PlaneComponent.h"
#include "gui/scene/Positions.h"
#include "max/Atoms.h"
#include "max/FileDialogs.h"
#include "max/OrvanemaxSymbols.h"

namespace halcyra
{
namespace
{

using orvanemax::Atoms;
using orvanemax::invalidMessage;

constexpr t_fourcc textType = 0x54455854;

t_halcyra_control* control (void* x) noexcept { return static_cast<t_halcyra_control*> (x); }

bool isName (Atoms atoms) noexcept { return atoms.fit ("s") || atoms.fit ("l"); }

qel::String nameOf (const t_atom& atom)
{
    switch (atom_gettype (&atom)) {
    case A_LONG:
        return qel::String (static_cast<long long> (atom_getlong (&atom)));
    case A_FLOAT:
        return qel::String (atom_getfloat (&atom), 0);
    default:
        return atom_getsym (&atom)->s_name;
    }
}

bool isSnapshotReference (const t_atom& atom) noexcept
{
    return atom_gettype (&atom) == A_SYM || orvanemax::isNumber (atom);
}

/** Shared by reading and writing: validation, the dialog, and the final log message. */
struct FileTask
{
    const char* complaint;
    std::string (*ask)();
    bool (*run) (qel::CoordinatesSnapshotStore& store, const qel::File& file);
    const char* failed;
    const char* done;
};

constexpr FileTask readTask{
    "invalid message : readsnapshot",
    [] { return orvanemax::askForFileToOpen(); },
    [] (qel::CoordinatesSnapshotStore& store, const qel::File& file) { return store.read (file); },
    "error loading file ",
    " properly loaded",
};

constexpr FileTask writeTask{
    "invalid message : writesnapshot",
    [] { return orvanemax::askForFileToSave ("file.xml", textType); },
    [] (qel::CoordinatesSnapshotStore& store, const qel::File& file) {
        return store.write (file, versionText(), true);
    },
    "error writing file ",
    " properly written",
};

void runFileTask (t_halcyra_control* x, const FileTask& task, Atoms atoms)
{
    if (! atoms.empty() && ! atoms.fitExactly ("s"))
        return invalidMessage (x, task.complaint, atoms);
    if (! atoms.empty() && atoms.symbol (0) == orvanemax::symbols().none)
        return;
    const qel::File file (atoms.empty() ? qel::String (task.ask()) : qel::String (atoms.symbol (0)->s_name));
    if (file.empty())
        return;
    if (task.run (x->plane->GetSnapshots(), file))
        orvanemax::tellPost (x, "file " + file.path().str() + task.done);
    else
        orvanemax::tellError (x, task.failed + file.path().str());
}

}

void storeSnapshot (void* object, t_symbol*, t_clong argc, t_atom* argv)
{
    auto* x = control (object);
    const Atoms atoms (argc, argv);
    if (! isName (atoms))
        return invalidMessage (x, "invalid message : store", atoms);
    x->plane->GetSnapshots().store (nameOf (atoms[0]), lumo::Plane::PositionsOf (x->plane->GetScene().sources));
}

void recallSnapshot (void* object, t_symbol*, t_clong argc, t_atom* argv)
{
    auto* x = control (object);
    const Atoms atoms (argc, argv);
    if (! isName (atoms))
        return invalidMessage (x, "invalid message : recall", atoms);
    x->plane->SetSourcesPositions (x->plane->GetSnapshots().points (nameOf (atoms[0])), true);
}

void clearSnapshot (void* object, t_symbol*, t_clong argc, t_atom* argv)
{
    auto* x = control (object);
    const Atoms atoms (argc, argv);
    if (atoms.empty())
        x->plane->GetSnapshots().removeAll();
    else if (isName (atoms))
        x->plane->GetSnapshots().remove (nameOf (atoms[0]));
    else
        invalidMessage (x, "invalid message : clearsnapshot", atoms);
}

void interpolateSnapshots (void* object, t_symbol*, t_clong argc, t_atom* argv)
{
    auto* x = control (object);
    const Atoms atoms (argc, argv);
    if (atoms.size() != 3 || ! isSnapshotReference (atoms[0]) || ! isSnapshotReference (atoms[1]) ||
        ! orvanemax::isNumber (atoms[2]))
        return invalidMessage (x, "invalid message : xsnapshot", atoms);
    qel::Point3Array points;
    x->plane->GetSnapshots().interpolate (points, nameOf (atoms[0]), nameOf (atoms[1]), atoms.number (2));
    x->plane->SetSourcesPositions (std::move (points), true);
}

void readSnapshot (void* x, t_symbol*, t_clong argc, t_atom* argv)
{
    runFileTask (control (x), readTask, Atoms (argc, argv));
}

void writeSnapshot (void* x, t_symbol*, t_clong argc, t_atom* argv)
{
    runFileTask (control (x), writeTask, Atoms (argc, argv));
}

}
