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

inline constexpr t_clong maxSources = 250; // array capacity; numsources and numspeakers go up to 64
inline constexpr t_clong maxColours = 4 * maxSources;
inline constexpr t_clong maxPositions = 3 * maxSources;
}

/** The object's struct, allocated and zeroed by the host. Attributes are stored at the offsets of its fields.

    Attribute fields mirror the component's state, so that the host can read them directly. C++ objects are held by
    pointer, created in halcyra_control_new and deleted in halcyra_control_free. Main thread only, except

    - the three sizes, which are constant once the object is constructed;
    - the contents of the atom arrays, which a getter reads on any thread: see PerSourceStores.h;
    - single fields and fixed arrays, which the host's own getters read on any thread without a lock, as in every
      external: a 32-bit value is either the old or the new one, and a list may be partly old. */
struct t_halcyra_control
{
    t_object object;
    t_symbol *classdescription, *classdigest, *externalversion, *classseealso;
    void* snapshotoutlet; // unused by this object

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
    t_qelem* viewerqelem; // unused by this object
    float shoeboxcorners[6];
    t_atom* sourcecolor; // maxColours atoms, four per source
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
    lumo::PlaneComponent* plane; // owned by the component
    std::int32_t outputformat;   // the format as a qel::CoordinateType
    std::int32_t outputcount;    // values per point in that format
    std::int32_t speakerspositionssize, sourcespositionssize;

    // The reverberator.
    MaxMspJuceWindowManager* window;
    void* outlet; // null until construction is nearly finished
    t_atom_long numinternals;
    HalcyraComponent* component;
    MaxHalcyraListener* listener;
    HLShelfParameters filters[4]; // direct, room, early, cluster: as last notified
    float gain, tr0, trl, trm, trh, fl, fh;
    float early_start, early_end, early_distr, early_shape, early_width;
    float cluster_start, cluster_end, cluster_distr, reverb_start, modaldensity;
    std::int32_t roomairabsorption, infinite;
    float roomairrolloff;
    float direct[6], room[6], early[6], cluster[6];
    bool constructed; // the three sizes are fixed from here on
    std::int32_t showfps, useopengl, windowmoveable;
    float windowtopleft[2];
    t_symbol* windowtitle;

    halcyra::SceneMirror* scene;
};

static_assert (std::is_standard_layout_v<t_halcyra_control> && std::is_trivial_v<t_object>);

/** An attribute's name and the offset of its value. */
#define HALCYRA_FIELD(field)                                                                                           \
    orvanemax::AttributeField { #field, calcoffset(t_halcyra_control, field) }

/** Registers `halcyra~.control` with the host and returns 0. Called once when the external is loaded. */
MAX_EXPORT t_clong ext_main (void* unused);

void* halcyra_control_new (t_symbol* name, t_clong argc, t_atom* argv);
void halcyra_control_free (t_halcyra_control* x);
void halcyra_control_assist (t_halcyra_control* x, void* box, t_clong io, t_clong index, char* text);

/** Open or raise the window; hide it. */
void halcyra_control_open (void* x);
void halcyra_control_wclose (void* x);
