#include "external/ViewerOptions.h"

#include "gui/plane/PlaneComponent.h"
#include "max/OrvanemaxSymbols.h"

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
};

/** The labels of sources and speakers are no options of the plane: their mirrors keep what the patcher set. */
constexpr FlagMirror flagMirrors[] = {
    { &PlaneOptions::sourcesVisible, &Control::showsources },
    { &PlaneOptions::speakersVisible, &Control::showspeakers },
    { &PlaneOptions::listenerVisible, &Control::showlistener },
    { &PlaneOptions::sourcesEditable, &Control::sourceseditable },
    { &PlaneOptions::speakersEditable, &Control::speakerseditable },
    { &PlaneOptions::listenerEditable, &Control::listenereditable },
    { &PlaneOptions::circularConstraint, &Control::circularconstraint },
    { &PlaneOptions::radiusConstraint, &Control::radiusconstraint },
    { &PlaneOptions::backgroundImageVisible, &Control::showbackgroundimage },
    { &PlaneOptions::radiusVisible, &Control::showradius },
    { &PlaneOptions::shoeboxVisible, &Control::showshoebox },
    { &PlaneOptions::angularDivisionsVisible, &Control::showangulardivisions },
    { &PlaneOptions::apertureVisible, &Control::showaperture },
    { &PlaneOptions::hullVisible, &Control::showspeakershull },
    { &PlaneOptions::speakersRadiusVisible, &Control::showspeakersradius },
    { &PlaneOptions::speakersProjectionVisible, &Control::showspeakersprojection },
    { &PlaneOptions::anchorsVisible, &Control::showanchors },
    { &PlaneOptions::anchorsLabelVisible, &Control::showanchorslabel },
    { &PlaneOptions::areasVisible, &Control::showareas },
    { &PlaneOptions::areasMonitoring, &Control::areasmonitoring },
    { &PlaneOptions::headphonesVisible, &Control::showheadphones },
    { &PlaneOptions::triangulationVisible, &Control::showspeakerstriangulation },
    { &PlaneOptions::legendVisible, &Control::showlegend },
    { &PlaneOptions::speakersLevelsVisible, &Control::showspeakerslevels },
    { &PlaneOptions::sourcesLevelsVisible, &Control::showsourceslevels },
    { &PlaneOptions::zoomLocked, &Control::zoomlock },
    { &PlaneOptions::rightClickLocked, &Control::rightclicklock },
    { &PlaneOptions::gridDashed, &Control::dashedgrid },
};

}

void mirrorViewerOptions (t_halcyra_control* x)
{
    PlaneOptions options;
    x->plane->GetOptions (options);
    for (const auto& row : flagMirrors)
        x->*row.mirror = options.*row.flag ? 1 : 0;
    x->zoom = options.zoom;
    x->gridspacing = options.gridSpacing;
    x->numangulardivisions = options.gridNumAngularDivisions;
    x->gridlines = options.gridNumLines;
    x->gridmode = gensym (lumo::Plane::Grid::NameOf (options.gridMode).c_str());
    x->viewpoint = options.topView ? orvanemax::symbols().top : orvanemax::symbols().front;
}

}
