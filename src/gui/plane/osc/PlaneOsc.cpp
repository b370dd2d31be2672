#include "geometry/OrvaneDspSpherical.h"
#include "gui/plane/Colours.h"
#include "gui/plane/PlaneComponent.h"
#include "gui/plane/Text.h"

#include <cmath>

namespace lumo
{

using namespace Plane;

namespace
{

void AddPosition (qel::OSCBundle& bundle, const qel::String& address, const qel::Point3& position)
{
    qel::OSCMessage message (address);
    message.add (qel::azimuth (position)).add (qel::elevation (position)).add (qel::distance (position));
    bundle.add (message);
}

float Degrees (float radians) { return radians * qel::degreesPerRadian; }

/** An address and how to add its value to the bundle. To expose another value: one row. */
template <typename Object>
struct Row
{
    const char* address; // after the object's own
    void (*add) (qel::OSCBundle&, const qel::String& address, const Object&);
};

template <typename Object, std::size_t size>
qel::OSCBundle StateOf (const Object& object, const Row<Object> (&rows)[size], const qel::String& prefix)
{
    qel::OSCBundle bundle;
    for (const auto& row : rows)
        row.add (bundle, prefix + row.address, object);
    return bundle;
}

using Bundle = qel::OSCBundle;
using Address = const qel::String&;

const Row<Source> sourceRows[] = {
    { "/label/text", [] (Bundle& b, Address a, const Source& s) { b.add (a, ToCore (s.label.Text())); } },
    { "/label/visible", [] (Bundle& b, Address a, const Source& s) { b.add (a, s.labelVisible); } },
    { "/label/color", [] (Bundle& b, Address a, const Source& s) { b.add (a, ToCore (s.labelColour)); } },
    { "/visible", [] (Bundle& b, Address a, const Source& s) { b.add (a, s.visible); } },
    { "/editable", [] (Bundle& b, Address a, const Source& s) { b.add (a, s.Editable()); } },
    { "/aed", [] (Bundle& b, Address a, const Source& s) { AddPosition (b, a, s.position); } },
    { "/aperture/angle", [] (Bundle& b, Address a, const Source& s) { b.add (a, s.ApertureDegrees()); } },
    { "/aperture/visible", [] (Bundle& b, Address a, const Source& s) { b.add (a, s.apertureVisible); } },
    { "/aperture/color", [] (Bundle& b, Address a, const Source& s) { b.add (a, ToCore (s.apertureColour)); } },
    { "/yaw/angle", [] (Bundle& b, Address a, const Source& s) { b.add (a, s.YawDegrees()); } },
    { "/yaw/mode", [] (Bundle& b, Address a, const Source& s) { b.add (a, Orientation::NameOf (s.yawMode)); } },
    { "/proportion", [] (Bundle& b, Address a, const Source& s) { b.add (a, s.Proportion()); } },
    { "/color", [] (Bundle& b, Address a, const Source& s) { b.add (a, ToCore (s.Colour())); } },
    { "/coordinates/visible", [] (Bundle& b, Address a, const Source& s) { b.add (a, s.coordinatesVisible); } },
};

const Row<Speaker> speakerRows[] = {
    { "/name/text", [] (Bundle& b, Address a, const Speaker& s) { b.add (a, ToCore (s.name.Text())); } },
    { "/name/visible", [] (Bundle& b, Address a, const Speaker& s) { b.add (a, s.nameVisible); } },
    { "/visible", [] (Bundle& b, Address a, const Speaker& s) { b.add (a, s.visible); } },
    { "/editable", [] (Bundle& b, Address a, const Speaker& s) { b.add (a, s.editable); } },
    { "/aed", [] (Bundle& b, Address a, const Speaker& s) { AddPosition (b, a, s.position); } },
    { "/proportion", [] (Bundle& b, Address a, const Speaker& s) { b.add (a, s.proportion); } },
    { "/color", [] (Bundle& b, Address a, const Speaker& s) { b.add (a, ToCore (s.colour)); } },
};

const Row<Plane::Listener> listenerRows[] = {
    { "/listener/visible", [] (Bundle& b, Address a, const Plane::Listener& l) { b.add (a, l.visible); } },
    { "/listener/editable", [] (Bundle& b, Address a, const Plane::Listener& l) { b.add (a, l.editable); } },
    { "/listener/headphonesvisible",
      [] (Bundle& b, Address a, const Plane::Listener& l) { b.add (a, l.headphonesVisible); } },
    { "/listener/aed", [] (Bundle& b, Address a, const Plane::Listener& l) { AddPosition (b, a, l.position); } },
    { "/listener/yaw", [] (Bundle& b, Address a, const Plane::Listener& l) { b.add (a, Degrees (l.yaw)); } },
    { "/listener/pitch", [] (Bundle& b, Address a, const Plane::Listener& l) { b.add (a, Degrees (l.pitch)); } },
    { "/listener/roll", [] (Bundle& b, Address a, const Plane::Listener& l) { b.add (a, Degrees (l.roll)); } },
    { "/listener/proportion", [] (Bundle& b, Address a, const Plane::Listener& l) { b.add (a, l.proportion); } },
};

std::int32_t Integer (std::size_t number) { return static_cast<std::int32_t> (number); }

const Row<Grid> gridRows[] = {
    { "/grid/mode", [] (Bundle& b, Address a, const Grid& g) { b.add (a, Grid::NameOf (g.mode)); } },
    { "/grid/spacing", [] (Bundle& b, Address a, const Grid& g) { b.add (a, g.spacing); } },
    { "/grid/numlines", [] (Bundle& b, Address a, const Grid& g) { b.add (a, Integer (g.numLines)); } },
    { "/grid/numangulardivisions",
      [] (Bundle& b, Address a, const Grid& g) { b.add (a, Integer (g.numAngularDivisions)); } },
    { "/grid/dashed", [] (Bundle& b, Address a, const Grid& g) { b.add (a, g.dashed); } },
    { "/grid/color", [] (Bundle& b, Address a, const Grid& g) { b.add (a, ToCore (g.colour)); } },
};

const Row<Background> backgroundRows[] = {
    { "/background/color", [] (Bundle& b, Address a, const Background& g) { b.add (a, ToCore (g.colour)); } },
};

const Row<BackgroundImage> imageRows[] = {
    { "/backgroundimage/file", [] (Bundle& b, Address a, const BackgroundImage& i) { b.add (a, ToCore (i.file)); } },
    { "/backgroundimage/visible", [] (Bundle& b, Address a, const BackgroundImage& i) { b.add (a, i.visible); } },
    { "/backgroundimage/opacity", [] (Bundle& b, Address a, const BackgroundImage& i) { b.add (a, i.opacity); } },
    { "/backgroundimage/scale", [] (Bundle& b, Address a, const BackgroundImage& i) { b.add (a, i.scale); } },
    { "/backgroundimage/angle", [] (Bundle& b, Address a, const BackgroundImage& i) { b.add (a, i.angle); } },
    { "/backgroundimage/xoffset", [] (Bundle& b, Address a, const BackgroundImage& i) { b.add (a, i.xOffset); } },
    { "/backgroundimage/yoffset", [] (Bundle& b, Address a, const BackgroundImage& i) { b.add (a, i.yOffset); } },
    { "/backgroundimage/quality",
      [] (Bundle& b, Address a, const BackgroundImage& i) { b.add (a, BackgroundImage::NameOf (i.quality)); } },
};

/** Whether an address begins with this literal name; patterns do not match here. */
bool BeginsWith (const qel::OSCMessage& message, const char* name)
{
    const auto& parts = message.address().parts();
    return ! parts.empty() && parts[0] == name;
}

/** A switch readable and writable by address. */
template <typename Object>
struct Switch
{
    const char* address;
    bool Object::*state;
};

constexpr Switch<Axis> axisSwitches[] = { { "/axis/visible", &Axis::visible },
                                          { "/axis/label/visible", &Axis::labelVisible },
                                          { "/axis/origin/visible", &Axis::originVisible } };
constexpr Switch<Legend> legendSwitches[] = { { "/legend/visible", &Legend::visible } };

template <typename Object, std::size_t size>
bool SetSwitch (Object& object, const Switch<Object> (&switches)[size], const qel::OSCMessage& message)
{
    if (! message.has ('b'))
        return false;
    for (const auto& row : switches)
        if (message.matches (row.address)) {
            object.*row.state = message[0].asBool();
            return true;
        }
    return false;
}

template <typename Object, std::size_t size>
void AddSwitches (qel::OSCBundle& bundle, const Object& object, const Switch<Object> (&switches)[size])
{
    for (const auto& row : switches)
        bundle.add (row.address, object.*row.state);
}

}

// ---- Axis and legend

bool Axis::processOscMessage (const qel::OSCMessage& message)
{
    if (! BeginsWith (message, "axis"))
        return false;
    if (! message.has ("nnnn", true) || ! message.matches ("/axis/color"))
        return SetSwitch (*this, axisSwitches, message);
    colour = FromCore (message.toColour());
    return true;
}

qel::OSCBundle Axis::getOscState()
{
    qel::OSCBundle bundle;
    AddSwitches (bundle, *this, axisSwitches);
    bundle.add ("/axis/color", ToCore (colour));
    return bundle;
}

bool Legend::processOscMessage (const qel::OSCMessage& message)
{
    return BeginsWith (message, "legend") && SetSwitch (*this, legendSwitches, message);
}

qel::OSCBundle Legend::getOscState()
{
    qel::OSCBundle bundle;
    AddSwitches (bundle, *this, legendSwitches);
    return bundle;
}

// ---- The plane

bool PlaneBase::processOscMessage (const qel::OSCMessage& message)
{
    const bool isWritten = surface.axis.processOscMessage (message) || surface.legend.processOscMessage (message);
    if (isWritten)
        MarkStaticLayerDirty(); // for the repaint, which the caller requests
    return isWritten;
}

qel::OSCBundle PlaneBase::getOscState()
{
    qel::OSCBundle bundle;
    bundle.add (StateOf (surface.listener, listenerRows, {}));
    bundle.add (StateOf (surface.grid, gridRows, {}));
    bundle.add (surface.axis.getOscState());
    bundle.add (StateOf (surface.background, backgroundRows, {}));
    bundle.add (StateOf (surface.backgroundImage, imageRows, {}));
    bundle.add (surface.legend.getOscState());
    return bundle;
}

qel::OSCBundle PlaneComponent::getOscState()
{
    const auto addressOf = [] (const char* kind, std::size_t index) {
        return qel::String (kind + std::to_string (index + 1));
    };
    qel::OSCBundle bundle;
    bundle.add ("/numsources", Integer (scene.sources.size()));
    for (std::size_t i = 0; i < scene.sources.size(); ++i)
        bundle.add (StateOf (scene.sources[i], sourceRows, addressOf ("/source/", i)));
    bundle.add ("/numspeakers", Integer (scene.speakers.size()));
    for (std::size_t i = 0; i < scene.speakers.size(); ++i)
        bundle.add (StateOf (scene.speakers[i], speakerRows, addressOf ("/speaker/", i)));
    bundle.add (PlaneBase::getOscState());
    return bundle;
}

}
