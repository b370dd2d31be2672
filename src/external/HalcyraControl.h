#pragma once
#include "host/api/MaxApi.h"
#include "reverb/HalcyraParameters.h"

#include <cstddef>
#include <cstdint>
#include <type_traits>

class HalcyraComponent;
class MaxHalcyraListener;
class MaxMspJuceWindowManager;

namespace lumo
{
class PlaneComponent;
}

namespace halcyra
{
class SceneMirror;

inline constexpr t_clong maxSources = 250; // the room of the arrays; numsources and numspeakers go up to 64
inline constexpr t_clong maxColours = 4 * maxSources;
inline constexpr t_clong maxPositions = 3 * maxSources;
}

/** The object's record, which the host allocates and zeroes. Attributes lie at the offsets of its fields.

    The fields of an attribute mirror what the component holds, so that the host can read them without it. C++ objects
    hang on the record by pointer: they are made in halcyra_control_new and deleted in halcyra_control_free. All of it
    belongs to the main thread but

    - the three sizes, which stand still once the object is made;
    - what the arrays of atoms hold, which is read by a getter on any thread: see PerSourceStores.h;
    - single fields and fixed arrays, which the host's own getters read on any thread, without a lock, as of every
      external: a value of 32 bits is the old one or the new one, and of a list some may be old. */
struct t_halcyra_control
{
    t_object object;
    t_symbol *classdescription, *classdigest, *externalversion, *classseealso;
    void* snapshotoutlet; // this object has none

    // The scene.
    t_atom_long numsources, numspeakers;
    float sourcespositions[halcyra::maxPositions];
    float speakerspositions[halcyra::maxPositions];
    float listenerposition[3];
    float listeneryaw, listenerpitch, listenerroll; // degrees
    float zoom, sourceproportion, speakersproportion, listenerproportion, globalproportion;
    float xoffset, yoffset, zoffset;
    t_symbol* backgroundimage;
    float backgroundimagescale, backgroundimagexoffset, backgroundimageyoffset;
    float backgroundimageangle, backgroundimageopacity;
    t_symbol* backgroundimagequality;
    double aperturecolor[4], gridcolor[4]; // red green blue alpha
    t_atom_long showsources, showspeakers, showlistener, showsourceslabel, showspeakerslabel, showaperture;
    t_atom_long showbackgroundimage, showradius, showshoebox, showspeakershull, circularconstraint, radiusconstraint;
    t_atom_long sourceseditable, speakerseditable, listenereditable, showangulardivisions, showspeakersradius;
    t_atom_long showspeakersprojection, showanchorslabel, showanchors, showareas, showheadphones, areasmonitoring;
    t_atom_long showspeakerstriangulation, showviewer, showlegend, zoomlock, rightclicklock;
    t_atom_long autozoom, showspeakerslevels, showsourceslevels, display, defer;
    t_qelem* viewerqelem; // this object makes none
    float shoeboxcorners[6];
    t_atom* sourcecolor; // maxColours atoms, four a source
    t_atom_long sourcecolorsize;
    t_symbol* name[halcyra::maxSources];
    t_atom_long numareas, numanchors, numangulardivisions;
    float gridspacing;
    t_atom_long gridlines;
    t_symbol* gridmode;
    t_atom_long dashedgrid;
    t_symbol* viewpoint;
    t_atom *radius, *yaw, *aperture; // maxSources atoms each
    t_symbol* orientationmode[halcyra::maxSources];
    t_atom *speakerslevels, *sourceslevels; // dB, maxSources atoms each
    double backgroundcolor[4];
    t_symbol* format;
    lumo::PlaneComponent* plane; // the component's
    std::int32_t outputformat;   // the format as a qel::CoordinateType
    std::int32_t outputcount;    // values of a point in it
    std::int32_t speakerspositionssize, sourcespositionssize;

    // The reverberator.
    MaxMspJuceWindowManager* window;
    void* outlet; // null until the object is nearly made
    t_atom_long numinternals;
    HalcyraComponent* component;
    MaxHalcyraListener* listener;
    HLShelfParameters filters[4]; // direct, room, early, cluster: as they were told last
    float gain, tr0, trl, trm, trh, fl, fh;
    float early_start, early_end, early_distr, early_shape, early_width;
    float cluster_start, cluster_end, cluster_distr, reverb_start, modaldensity;
    std::int32_t roomairabsorption, infinite;
    float roomairrolloff;
    float direct[6], room[6], early[6], cluster[6];
    bool constructed; // from then on the three sizes are fixed
    std::int32_t showfps, useopengl, windowmoveable;
    float windowtopleft[2];
    t_symbol* windowtitle;

    halcyra::SceneMirror* scene;
};

static_assert (std::is_standard_layout_v<t_halcyra_control> && std::is_trivial_v<t_object>);

/** An attribute's name and where its value lies. */
#define HALCYRA_FIELD(field)                                                                                           \
    orvanemax::AttributeField { #field, calcoffset(t_halcyra_control, field) }

/** Registers `halcyra~.control` with the host and returns 0. Called once when the external is loaded. */
MAX_EXPORT t_clong ext_main (void* unused);

void* halcyra_control_new (t_symbol* name, t_clong argc, t_atom* argv);
void halcyra_control_free (t_halcyra_control* x);
void halcyra_control_assist (t_halcyra_control* x, void* box, t_clong io, t_clong index, char* text);

/** The window: opens or comes to the front; is hidden. */
void halcyra_control_open (void* x);
void halcyra_control_wclose (void* x);
