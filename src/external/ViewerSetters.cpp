#include "external/ViewerSetters.h"

#include "external/CoordinateMessages.h"
#include "external/PerSourceStores.h"
#include "external/PointMirror.h"
#include "external/SceneUpdates.h"
#include "gui/verb/HalcyraComponent.h"
#include "max/FileDialogs.h"
#include "max/ObjectCall.h"
#include "max/OrvanemaxSymbols.h"

#include <cctype>
#include <string_view>

namespace halcyra::setters
{
namespace
{

using orvanemax::objectIsGone;
using orvanemax::symbols;

/** Copies the numbers, at most `room` of them. */
void copyNumbers (Atoms atoms, float* target, t_clong room)
{
    atom_getfloat_array (static_cast<t_clong> (atoms.size()), const_cast<t_atom*> (atoms.begin()), room, target);
}

/** Stores one level per object and sets the plane; false if the list is too short or has no numbers. The vector keeps
    its storage between calls, because meters run continuously. */
bool storeLevels (Atoms atoms, t_atom* mirror, t_atom_long number, qel::Vector<float>& levels)
{
    const auto count = static_cast<std::size_t> (number);
    if (atoms.size() < count)
        return false;
    levels.resize (count);
    for (std::size_t i = 0; i < count; ++i) {
        if (! orvanemax::isNumber (atoms[i]))
            return false;
        levels[i] = atoms.number (i);
    }
    const std::lock_guard<std::mutex> lock (perSourceStores());
    for (std::size_t i = 0; i < count && mirror != nullptr; ++i)
        atom_setfloat (&mirror[i], static_cast<double> (levels[i]));
    return true;
}

/** "/..." or "X:/..." or "X:\..." */
bool isFullPath (const std::string& name)
{
    const bool hasDrive = name.size() > 2 && std::isalpha (static_cast<unsigned char> (name[0])) != 0 && name[1] == ':';
    return (! name.empty() && name[0] == '/') || (hasDrive && (name[2] == '/' || name[2] == '\\'));
}

/** The path of an image; empty if it is not found. */
qel::File locateImage (const char* name)
{
    if (! isFullPath (name))
        return qel::File (orvanemax::locateFile (name));
    const qel::File file (name);
    return file.exists() ? file : qel::File();
}

}

bool isChoice (const AttributeRow& row, const t_symbol* word) noexcept
{
    const std::string_view wanted = word->s_name;
    for (std::string_view left = row.choices; ! left.empty();) {
        const auto end = std::min (left.find (' '), left.size());
        if (left.substr (0, end) == wanted)
            return true;
        left.remove_prefix (std::min (end + 1, left.size()));
    }
    return false;
}

void refuse (t_halcyra_control* x, const AttributeRow& row, Atoms atoms)
{
    orvanemax::invalidMessage (x, (std::string ("invalid message : ") + row.name).c_str(), atoms);
}

bool keep (t_halcyra_control* x, const AttributeRow& row, Atoms atoms)
{
    if (atoms.fit ("l"))
        field<t_atom_long> (x, row) = atoms.integer (0) != 0 ? 1 : 0;
    return true;
}

bool radiusConstraint (t_halcyra_control* x, const AttributeRow&, Atoms atoms)
{
    if (atoms.fit ("l"))
        scene::setRadiusConstraint (x, atoms.integer (0) != 0);
    return true;
}

/** A square grid reads back as cartesian, so that word is accepted too. */
bool gridMode (t_halcyra_control* x, const AttributeRow& row, Atoms atoms)
{
    if (! atoms.fit ("s"))
        return true;
    const auto* mode = atoms.symbol (0);
    const bool isWritten = lumo::Plane::Grid::NameOf (lumo::Plane::Grid::square) == mode->s_name;
    if (! isWritten && ! isChoice (row, mode)) {
        refuse (x, row, atoms);
        return false;
    }
    x->plane->SetGridMode (isWritten ? lumo::Plane::Grid::square : lumo::Plane::Grid::ModeNamed (mode->s_name));
    return true;
}

/** Ignores a list that is too short, rejects one with an invalid word; values of a source that do not fit are
    skipped. */
bool eachSource (t_halcyra_control* x, const AttributeRow& row, Atoms atoms)
{
    const auto& property = scene::withAttribute (scene::sourceProperties(), row.name);
    for (const auto& atom : atoms)
        if (property.isGood != nullptr && atom_gettype (&atom) == A_SYM && ! property.isGood (atom_getsym (&atom))) {
            refuse (x, row, atoms);
            return false;
        }
    const auto width = std::string_view (property.values).size();
    const auto sources = static_cast<std::size_t> (x->numsources);
    if (atoms.size() < width * sources)
        return true;
    for (std::size_t i = 0; ! objectIsGone() && i < sources; ++i) {
        const auto values = atoms.from (width * i);
        if (values.fit (property.values))
            scene::update (x, property, static_cast<t_atom_long> (i), { static_cast<t_clong> (width), values.begin() },
                           true);
    }
    return true;
}

bool showViewer (t_halcyra_control* x, const AttributeRow& row, Atoms atoms)
{
    return atoms.fit ("l") && onOff<&lumo::PlaneComponent::SetViewerVisible> (x, row, atoms);
}

bool zoomLock (t_halcyra_control* x, const AttributeRow& row, Atoms atoms)
{
    return atoms.fit ("l") && onOff<&lumo::PlaneComponent::SetZoomLock> (x, row, atoms);
}

bool frameOption (t_halcyra_control* x, const AttributeRow& row, Atoms atoms)
{
    if (! atoms.fit ("n"))
        return false;
    const bool on = atoms.number (0) != 0;
    field<std::int32_t> (x, row) = on ? 1 : 0;
    if (&field<std::int32_t> (x, row) == &x->showfps)
        x->component->SetShowFps (on);
    else
        x->component->SetOpenGLEnabled (on);
    return true;
}

bool format (t_halcyra_control* x, const AttributeRow&, Atoms atoms)
{
    if (atoms.fit ("s"))
        setOutputFormat (x, atoms.symbol (0));
    return true;
}

bool sourcesPositions (t_halcyra_control* x, const AttributeRow&, Atoms atoms)
{
    if (atoms.empty() || ! atoms.areNumbers())
        return true;
    copyNumbers (atoms, x->sourcespositions, x->sourcespositionssize);
    for (t_atom_long i = 0; ! objectIsGone() && i < x->numsources; ++i)
        scene::moveSource (x, i, scene::sourceInMirror (x, i), true);
    return true;
}

bool speakersPositions (t_halcyra_control* x, const AttributeRow&, Atoms atoms)
{
    if (atoms.empty() || ! atoms.areNumbers())
        return true;
    copyNumbers (atoms, x->speakerspositions, x->speakerspositionssize);
    scene::moveSpeakers (x, scene::speakersInMirror (x), true);
    return true;
}

bool listenerPosition (t_halcyra_control* x, const AttributeRow&, Atoms atoms)
{
    if (atoms.fit ("nnn"))
        scene::moveListener (x, { atoms.number (0), atoms.number (1), atoms.number (2) }, true);
    return true;
}

bool listenerAngle (t_halcyra_control* x, const AttributeRow& row, Atoms atoms)
{
    const auto& property = scene::withAttribute (scene::listenerProperties(), row.name);
    if (atoms.fit (property.values))
        scene::update (x, property, 0, { 1, atoms.begin() }, true);
    return true;
}

bool sourcesLevels (t_halcyra_control* x, const AttributeRow&, Atoms atoms)
{
    static qel::Vector<float> levels;
    if (! storeLevels (atoms, x->sourceslevels, x->numsources, levels))
        return true;
    x->plane->SetSourcesLevels (levels);
    return true;
}

bool speakersLevels (t_halcyra_control* x, const AttributeRow&, Atoms atoms)
{
    static qel::Vector<float> levels;
    if (! storeLevels (atoms, x->speakerslevels, x->numspeakers, levels))
        return true;
    x->plane->SetSpeakersLevels (levels);
    return true;
}

bool shoeboxCorners (t_halcyra_control* x, const AttributeRow&, Atoms atoms)
{
    if (atoms.fit ("nnnnnn")) {
        auto& c = x->shoeboxcorners;
        copyNumbers (atoms, c, 6);
        x->plane->SetShoebox (pointIn (c), pointIn (c + 3));
    }
    return true;
}

bool backgroundImage (t_halcyra_control* x, const AttributeRow&, Atoms atoms)
{
    if (! atoms.fit ("s"))
        return true;
    auto* name = atoms.symbol (0) == symbols().empty ? symbols().none : atoms.symbol (0);
    if (name == symbols().none) {
        x->backgroundimage = name;
        x->plane->ClearBackgroundImage();
        return true;
    }
    x->backgroundimage = name; // kept if the file is missing: it may be back when the patch is next opened
    const auto file = locateImage (name->s_name);
    if (file.empty()) {
        x->plane->ClearBackgroundImage();
        orvanemax::tellError (x, std::string ("Couldnt locate file: ") + name->s_name);
        return true;
    }
    x->plane->SetBackgroundImageFile (juce::File (juce::String::fromUTF8 (file.path().c_str())));
    return true;
}

}
