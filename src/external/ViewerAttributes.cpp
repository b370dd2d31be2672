#include "external/ViewerAttributes.h"

#include "external/CoordinateMessages.h"
#include "external/PerSourceStores.h"
#include "external/SceneUpdates.h"
#include "external/ViewerOptions.h"
#include "external/ViewerSetters.h"
#include "geometry/OrvaneDspSpherical.h"
#include "max/MainThread.h"
#include "max/MaxAttribute.h"
#include "max/Modified.h"
#include "max/OrvanemaxSymbols.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <unordered_map>

namespace halcyra
{
namespace
{

namespace rows = orvanemax;
using Plane = lumo::PlaneComponent;
using namespace setters;

// For plane functions that take more than the value, or are overloaded.
void setZoom (Plane& plane, float zoom) { plane.SetZoom (zoom, true); }
void setBackgroundAngle (Plane& plane, float degrees)
{
    plane.SetBackgroundImageAngle (degrees * qel::radiansPerDegree);
}
void setBackgroundQuality (Plane& plane, const qel::String& name) { plane.SetBackgroundImageQuality (name); }
void setSourcesVisible (Plane& plane, bool on) { plane.SetAllSourcesVisible (on, false); }
void setSourcesEditable (Plane& plane, bool on) { plane.SetSourcesEditable (on, true); }
void setSpeakersEditable (Plane& plane, bool on) { plane.SetSpeakersEditable (on, true); }
void setCircularConstraint (Plane& plane, bool on) { plane.SetCircularConstraint (on); }
void setBackgroundColour (Plane& plane, float r, float g, float b, float a) { plane.SetBackgroundColour (r, g, b, a); }
void setGridColour (Plane& plane, float r, float g, float b, float a) { plane.SetGridColour (r, g, b, a, true); }
void setApertureColour (Plane& plane, float r, float g, float b, float a)
{
    const auto shade = juce::Colour::fromFloatRGBA (r, g, b, a);
    for (std::size_t i = 0; i < plane.GetNumSources(); ++i)
        plane.SetSourceApertureColour (i, shade);
}

/** Attribute of a per-source property: its numbers are stored in the struct's atom arrays. */
ViewerAttribute ofEachSource (std::string_view name)
{
    const auto& row = scene::withAttribute (scene::sourceProperties(), name).attribute;
    return { row, eachSource, std::string_view (row.type) != "symbol" };
}

ViewerAttribute ofListener (std::string_view name)
{
    return { scene::withAttribute (scene::listenerProperties(), name).attribute, listenerAngle };
}

// clang-format off
const ViewerAttribute table[] = {
    { rows::onOff (HALCYRA_FIELD (showfps), "0", "show fps (for debug)"), frameOption },
    { rows::onOff (HALCYRA_FIELD (useopengl), "0", "use openGL rendering"), frameOption },
    { rows::symbolic (HALCYRA_FIELD (format), "aed", "output coordinate format").among ("aed xyz xy ae ade az ad ambrel3 wfs"), format },
    { rows::number (HALCYRA_FIELD (sourcespositions), nullptr, "sources positions").list (maxPositions, calcoffset (t_halcyra_control, sourcespositionssize)).in ("xyz"), sourcesPositions },
    { rows::number (HALCYRA_FIELD (speakerspositions), nullptr, "speakers positions").list (maxPositions, calcoffset (t_halcyra_control, speakerspositionssize)).in ("xyz"), speakersPositions },
    { rows::number (HALCYRA_FIELD (listenerposition), "0. 0. 0.", "listener position").array (3).in ("xyz"), listenerPosition },
    { rows::number (HALCYRA_FIELD (zoom), "1", "zoom").atLeast (0.1), number<setZoom> },
    { rows::number (HALCYRA_FIELD (sourceproportion), "0.07", "source proportion").within (0.001, 1), number<&Plane::SetAllSourcesProportion> },
    { rows::number (HALCYRA_FIELD (speakersproportion), "0.1", "speakers proportion").within (0.001, 1), number<&Plane::SetAllSpeakersProportion> },
    { rows::number (HALCYRA_FIELD (listenerproportion), "0.15", "listener proportion").within (0.001, 1), number<&Plane::SetListenerProportion> },
    { rows::number (HALCYRA_FIELD (globalproportion), "0.1", "global proportion").within (0.1, 0.2), number<&Plane::SetMarkerProportion> },
    { rows::symbolic (HALCYRA_FIELD (viewpoint), "top", "view").among ("top front"), word<&Plane::SetViewpoint> },
    { rows::symbolic (HALCYRA_FIELD (backgroundimage), "none", "background image").styled ("file").described ("sets background image filename (supported formats are png and jpg)"), backgroundImage },
    { rows::number (HALCYRA_FIELD (backgroundimagescale), "1", "background image scale").within (0.1, 50), number<&Plane::SetBackgroundImageScale> },
    { rows::number (HALCYRA_FIELD (backgroundimagexoffset), "0", "background x offset").in ("px"), number<&Plane::SetBackgroundImageXOffset> },
    { rows::number (HALCYRA_FIELD (backgroundimageyoffset), "0", "background y offset").in ("px"), number<&Plane::SetBackgroundImageYOffset> },
    { rows::number (HALCYRA_FIELD (backgroundimageangle), "0", "background angle").in ("deg"), number<setBackgroundAngle> },
    { rows::number (HALCYRA_FIELD (backgroundimageopacity), "1", "background opacity").within (0, 1), number<&Plane::SetBackgroundImageOpacity> },
    { rows::symbolic (HALCYRA_FIELD (backgroundimagequality), "medium", "background resampling quality").among ("low medium high"), word<setBackgroundQuality> },
    { rows::onOff (HALCYRA_FIELD (autozoom), "0", "adjust zoom automatically"), onOff<&Plane::RequestAutoZoom> },
    { rows::onOff (HALCYRA_FIELD (showsources), "1", "display all sources"), onOff<setSourcesVisible> },
    { rows::onOff (HALCYRA_FIELD (showlistener), "1", "display listener"), onOff<&Plane::SetListenerVisible> },
    { rows::onOff (HALCYRA_FIELD (showsourceslabel), "1", "display sources name"), onOff<&Plane::SetAllSourceLabelsVisible> },
    { rows::onOff (HALCYRA_FIELD (showradius), "0", "display sources radius"), onOff<&Plane::SetRadiusVisible> },
    { rows::onOff (HALCYRA_FIELD (showspeakers), "1", "display all speakers"), onOff<&Plane::SetSpeakersVisible> },
    { rows::onOff (HALCYRA_FIELD (showspeakerslabel), "1", "display speakers name"), onOff<&Plane::SetAllSpeakerNamesVisible> },
    { rows::onOff (HALCYRA_FIELD (showspeakersradius), "0", "display speakers radius"), onOff<&Plane::SetSpeakersRadiusVisible> },
    { rows::onOff (HALCYRA_FIELD (showspeakersprojection), "0", "display speakers projection on the sphere"), onOff<&Plane::SetSpeakersProjectionVisible> },
    { rows::onOff (HALCYRA_FIELD (showareas), "0", "display areas"), onOff<&Plane::SetAreasVisible> },
    { rows::onOff (HALCYRA_FIELD (showanchors), "0", "display anchors"), onOff<&Plane::SetAnchorsVisible> },
    { rows::onOff (HALCYRA_FIELD (showanchorslabel), "0", "display anchors label"), onOff<&Plane::SetAnchorsLabelVisible> },
    { rows::onOff (HALCYRA_FIELD (areasmonitoring), "0", "monitor areas"), onOff<&Plane::SetAreasMonitoring> },
    { rows::onOff (HALCYRA_FIELD (showheadphones), "0", "display headphones"), onOff<&Plane::SetHeadphonesVisible> },
    { rows::onOff (HALCYRA_FIELD (showspeakerstriangulation), "0", "display speakers triangulation"), onOff<&Plane::SetTriangulationVisible> },
    { rows::onOff (HALCYRA_FIELD (showaperture), "1", "display sources aperture"), onOff<&Plane::SetApertureVisible> },
    { rows::onOff (HALCYRA_FIELD (showbackgroundimage), "1", "display background image"), onOff<&Plane::SetBackgroundImageVisible> },
    { rows::onOff (HALCYRA_FIELD (showshoebox), "0", "display shoebox"), onOff<&Plane::SetShoeboxVisible> },
    { rows::onOff (HALCYRA_FIELD (showspeakershull), "0", "display speakers convex hull").described ("enables/disables speakers convex hull display (may be CPU intensive)"), onOff<&Plane::SetHullVisible> },
    { rows::onOff (HALCYRA_FIELD (circularconstraint), "0", "circular constraint"), onOff<setCircularConstraint> },
    { rows::onOff (HALCYRA_FIELD (radiusconstraint), "0", "radius constraint"), radiusConstraint },
    { rows::onOff (HALCYRA_FIELD (sourceseditable), "1", "sources editable"), onOff<setSourcesEditable> },
    { rows::onOff (HALCYRA_FIELD (speakerseditable), "0", "speakers editable"), onOff<setSpeakersEditable> },
    { rows::onOff (HALCYRA_FIELD (listenereditable), "0", "listener editable"), onOff<&Plane::SetListenerEditable> },
    { rows::onOff (HALCYRA_FIELD (showangulardivisions), "1", "display angular divisions"), onOff<&Plane::SetAngularDivisionsVisible> },
    { rows::symbolic (HALCYRA_FIELD (gridmode), "circular", "grid").among ("none circular square"), gridMode },
    { rows::integer (HALCYRA_FIELD (numangulardivisions), "8", "number of angular divisions").within (0, 360), count<&Plane::SetGridNumAngularDivisions> },
    { rows::integer (HALCYRA_FIELD (numareas), "0", "number of areas").within (0, 50), count<&Plane::SetNumAreas> },
    { rows::integer (HALCYRA_FIELD (numanchors), "0", "number of anchors").within (0, 8192), count<&Plane::SetNumAnchors> },
    { rows::integer (HALCYRA_FIELD (dashedgrid), "0", "use dashed grid").within (0, 1), onOff<&Plane::SetGridDashed> },
    { rows::integer (HALCYRA_FIELD (gridlines), "5", "number of grid lines").within (0, 100), count<&Plane::SetGridNumLines> },
    { rows::number (HALCYRA_FIELD (gridspacing), "1", "grid spacing").within (0.1, 20), number<&Plane::SetGridSpacing> },
    ofListener ("listeneryaw"),
    ofListener ("listenerpitch"),
    ofListener ("listenerroll"),
    ofEachSource ("name"),
    ofEachSource ("sourcecolor"),
    ofEachSource ("yaw"),
    ofEachSource ("aperture"),
    ofEachSource ("radius"),
    { rows::number (HALCYRA_FIELD (speakerslevels), "-60", "speakers level").within (lumo::Plane::leastLevel, lumo::Plane::greatestLevel).list (maxSources, calcoffset (t_halcyra_control, numspeakers)).in ("dB"), speakersLevels, true },
    { rows::number (HALCYRA_FIELD (sourceslevels), "-60", "sources level").within (lumo::Plane::leastLevel, lumo::Plane::greatestLevel).list (maxSources, calcoffset (t_halcyra_control, numsources)).in ("dB"), sourcesLevels, true },
    { rows::number64 (HALCYRA_FIELD (backgroundcolor), "0.7 0.7 0.7 1.0", "color of backgroundcolor").styled ("rgba").array (4), colour<setBackgroundColour> },
    ofEachSource ("orientationmode"),
    { rows::number (HALCYRA_FIELD (shoeboxcorners), "0. 0. 0. 1. -1. 0.", "shoebox top left and bottom right corners").array (6), shoeboxCorners },
    { rows::number64 (HALCYRA_FIELD (gridcolor), "1 1 1 1", "grid color").styled ("rgba").array (4), colour<setGridColour> },
    { rows::number64 (HALCYRA_FIELD (aperturecolor), "1 1 1 0.6196078", "aperture color").styled ("rgba").array (4), colour<setApertureColour> },
    { rows::onOff (HALCYRA_FIELD (showviewer), "1", "show viewer").described ("enables/disables viewer display (could be CPU intensive)"), showViewer },
    { rows::onOff (HALCYRA_FIELD (showlegend), "1", "show legend"), onOff<&Plane::SetLegendVisible> },
    { rows::onOff (HALCYRA_FIELD (showspeakerslevels), "0", "show speakers vu-meters"), onOff<&Plane::SetSpeakersLevelsVisible> },
    { rows::onOff (HALCYRA_FIELD (showsourceslevels), "0", "show sources vu-meters"), onOff<&Plane::SetSourcesLevelsVisible> },
    { rows::onOff (HALCYRA_FIELD (zoomlock), "0", "lock zoom"), zoomLock },
    { rows::onOff (HALCYRA_FIELD (rightclicklock), "0", "lock right click"), onOff<&Plane::SetRightClickLock> },
    { rows::onOff (HALCYRA_FIELD (display), "1", "display"), keep },
    { rows::onOff (HALCYRA_FIELD (defer), "0", "defer").described ("defer or queue messages"), keep },
    { rows::number (HALCYRA_FIELD (xoffset), "0", "x offset").in ("px"), number<&Plane::SetXOffset> },
    { rows::number (HALCYRA_FIELD (yoffset), "0", "y offset").in ("px"), number<&Plane::SetYOffset> },
    { rows::number (HALCYRA_FIELD (zoffset), "0", "z offset").in ("px"), number<&Plane::SetZOffset> },
};
// clang-format on

const ViewerAttribute* attributeNamed (t_symbol* name)
{
    static const auto byName = [] {
        std::unordered_map<t_symbol*, const ViewerAttribute*> found;
        for (const auto& attribute : table)
            found[gensym (attribute.row.name)] = &attribute;
        return found;
    }();
    const auto entry = byName.find (name);
    return entry == byName.end() ? nullptr : entry->second;
}

/** Runs on the main thread; the name selects the attribute. */
void setByName (t_halcyra_control* x, t_symbol* name, short argc, t_atom* argv)
{
    const auto* attribute = attributeNamed (name);
    if (attribute == nullptr)
        return orvanemax::tellError (x, std::string ("unknown attribute ") + name->s_name);
    const bool notifies = attribute->set (x, attribute->row, orvanemax::Atoms (argc, argv));
    if (orvanemax::objectIsGone())
        return;
    mirrorViewerOptions (x); // the plane may have rejected it, or changed other options too
    if (notifies)
        orvanemax::notifyModified (x);
}

/** The struct's own atoms of a per-source attribute; null if their allocation failed. */
t_atom* atomsOf (t_halcyra_control* x, const AttributeRow& row) noexcept { return field<t_atom*> (x, row); }

t_atom_long countOf (const t_halcyra_control* x, const AttributeRow& row) noexcept
{
    return *reinterpret_cast<const t_atom_long*> (reinterpret_cast<const char*> (x) + row.countOffset);
}

/** Fills every element of a list, or the single symbol. */
void fillSymbols (t_halcyra_control* x, const AttributeRow& row)
{
    auto* word = gensym (row.defaultText == nullptr ? "" : row.defaultText);
    std::fill_n (&field<t_symbol*> (x, row), std::max<t_clong> (row.capacity, 1), word);
}

void fillAtoms (t_halcyra_control* x, const AttributeRow& row)
{
    auto* atoms = atomsOf (x, row);
    for (t_clong i = 0; atoms != nullptr && i < row.capacity; ++i)
        atom_setfloat (&atoms[i], row.defaultText == nullptr ? static_cast<double> (scene::newSourceColour[i % 4])
                                                             : std::atof (row.defaultText));
}

}

orvanemax::Rows<ViewerAttribute> viewerAttributes() noexcept { return table; }

void fillViewerDefaults (t_halcyra_control* x)
{
    for (auto** documentation : { &x->classdescription, &x->classdigest, &x->externalversion, &x->classseealso })
        *documentation = orvanemax::symbols().empty;
    for (const auto& attribute : table)
        if (std::string_view (attribute.row.type) == "symbol")
            fillSymbols (x, attribute.row);
        else if (attribute.isPerSource)
            fillAtoms (x, attribute.row);
    setOutputFormat (x, x->format);
}

}

t_max_err halcyra_control_viewer_set (t_halcyra_control* x, void* attribute, t_clong argc, t_atom* argv)
{
    auto* name = MaxAttribute (static_cast<t_object*> (attribute)).name();
    if (systhread_ismainthread())
        halcyra::setByName (x, name, orvanemax::deferrable (argc), argv);
    else
        orvanemax::runOnMainThread (x, orvanemax::hostFunction<halcyra::setByName>(), name, argc, argv);
    return MAX_ERR_NONE;
}

t_max_err halcyra_control_per_source_get (t_halcyra_control* x, void* attribute, t_clong* argc, t_atom** argv)
{
    auto* name = MaxAttribute (static_cast<t_object*> (attribute)).name();
    const auto* found = halcyra::attributeNamed (name);
    const auto* atoms = found != nullptr && found->isPerSource ? halcyra::atomsOf (x, found->row) : nullptr;
    if (atoms == nullptr) {
        object_error (&x->object, "unknown attribute %s", name->s_name);
        return MAX_ERR_GENERIC;
    }
    const auto count = halcyra::countOf (x, found->row);
    if (count < 1)
        return MAX_ERR_NONE;
    char allocated = 0;
    if (atom_alloc_array (static_cast<t_clong> (count), argc, argv, &allocated) != MAX_ERR_NONE) {
        object_bug (&x->object, "couldnt allocate memory for attribute %s getter", name->s_name);
        return MAX_ERR_OUT_OF_MEM;
    }
    // The caller's memory may be smaller.
    *argc = std::min (*argc, static_cast<t_clong> (count));
    const std::lock_guard<std::mutex> lock (halcyra::perSourceStores());
    sysmem_copyptr (atoms, *argv, static_cast<t_ptr_size> (*argc) * sizeof (t_atom));
    return MAX_ERR_NONE;
}
