#include "external/ViewerOptions.h"

#include "external/SceneMirror.h"
#include "gui/plane/PlaneComponent.h"
#include "max/ObjectCall.h"
#include "max/OrvanemaxSymbols.h"

#include <utility>

namespace halcyra
{
namespace
{

using lumo::PlaneOptions;
using Control = t_halcyra_control;

struct FlagMirror
{
    bool PlaneOptions::*flag;
    t_atom_long t_halcyra_control::*mirror;
    const char* attribute;
};

#define HALCYRA_OPTION(flag, field)                                                                                    \
    {                                                                                                                  \
        &PlaneOptions::flag, &Control::field, #field                                                                   \
    }

/** Labels of sources and speakers are not options of the plane: their mirrors keep what the patcher set. */
constexpr FlagMirror flagMirrors[] = {
    HALCYRA_OPTION (sourcesVisible, showsources),
    HALCYRA_OPTION (speakersVisible, showspeakers),
    HALCYRA_OPTION (listenerVisible, showlistener),
    HALCYRA_OPTION (sourcesEditable, sourceseditable),
    HALCYRA_OPTION (speakersEditable, speakerseditable),
    HALCYRA_OPTION (listenerEditable, listenereditable),
    HALCYRA_OPTION (circularConstraint, circularconstraint),
    HALCYRA_OPTION (radiusConstraint, radiusconstraint),
    HALCYRA_OPTION (backgroundImageVisible, showbackgroundimage),
    HALCYRA_OPTION (radiusVisible, showradius),
    HALCYRA_OPTION (shoeboxVisible, showshoebox),
    HALCYRA_OPTION (angularDivisionsVisible, showangulardivisions),
    HALCYRA_OPTION (apertureVisible, showaperture),
    HALCYRA_OPTION (hullVisible, showspeakershull),
    HALCYRA_OPTION (speakersRadiusVisible, showspeakersradius),
    HALCYRA_OPTION (speakersProjectionVisible, showspeakersprojection),
    HALCYRA_OPTION (anchorsVisible, showanchors),
    HALCYRA_OPTION (anchorsLabelVisible, showanchorslabel),
    HALCYRA_OPTION (areasVisible, showareas),
    HALCYRA_OPTION (areasMonitoring, areasmonitoring),
    HALCYRA_OPTION (headphonesVisible, showheadphones),
    HALCYRA_OPTION (triangulationVisible, showspeakerstriangulation),
    HALCYRA_OPTION (legendVisible, showlegend),
    HALCYRA_OPTION (speakersLevelsVisible, showspeakerslevels),
    HALCYRA_OPTION (sourcesLevelsVisible, showsourceslevels),
    HALCYRA_OPTION (zoomLocked, zoomlock),
    HALCYRA_OPTION (rightClickLocked, rightclicklock),
    HALCYRA_OPTION (gridDashed, dashedgrid),
};

#undef HALCYRA_OPTION

template <typename Value>
void mirror (t_halcyra_control* x, Value& stored, Value value, const char* attribute)
{
    if (! orvanemax::objectIsGone() && std::exchange (stored, value) != value)
        touchAttribute (x, gensym (attribute));
}

}

void mirrorViewerOptions (t_halcyra_control* x)
{
    if (orvanemax::objectIsGone())
        return;
    PlaneOptions options;
    x->plane->GetOptions (options);
    for (const auto& row : flagMirrors)
        mirror<t_atom_long> (x, x->*row.mirror, options.*row.flag ? 1 : 0, row.attribute);
    mirror (x, x->zoom, options.zoom, "zoom");
    const auto& view = x->plane->GetSurface().viewTransform;
    mirror (x, x->xoffset, view.xOffset, "xoffset");
    mirror (x, x->yoffset, view.yOffset, "yoffset");
    mirror (x, x->zoffset, view.zOffset, "zoffset");
    mirror (x, x->gridspacing, options.gridSpacing, "gridspacing");
    mirror<t_atom_long> (x, x->numangulardivisions, options.gridNumAngularDivisions, "numangulardivisions");
    mirror<t_atom_long> (x, x->gridlines, options.gridNumLines, "gridlines");
    mirror (x, x->gridmode, gensym (lumo::Plane::Grid::NameOf (options.gridMode).c_str()), "gridmode");
    mirror (x, x->viewpoint, options.topView ? orvanemax::symbols().top : orvanemax::symbols().front, "viewpoint");
}

}
