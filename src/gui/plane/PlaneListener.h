#pragma once
#include "geometry/OrvaneDspPoint3.h"
#include "text/OrvaneDspString.h"

#include <cstddef>
#include <vector>

namespace lumo
{

class PlaneBase;

/** Receives a plane's notifications on the message thread. Every function has an empty body: override what you need.
    Indices start at 0, angles in degrees, positions in metres, colours as floats from 0 to 1. */
class PlaneListener
{
public:
    /** One flag per source, or per area. */
    using Flags = std::vector<bool>;

    virtual ~PlaneListener() = default;

    virtual void SourcePositionChanged (std::size_t, const qel::Point3&) {}
    virtual void SpeakersPositionsChanged (const qel::Point3Array&) {}
    virtual void SpeakersProjectionChanged (const qel::Point3Array&) {}

    virtual void SourceVisibleChanged (std::size_t, bool) {}
    virtual void AllSourcesVisibleChanged (bool) {}
    virtual void SpeakerVisibleChanged (std::size_t, bool) {}
    virtual void AllSpeakersVisibleChanged (bool) {}

    virtual void SourceColourChanged (std::size_t, float /*red*/, float /*green*/, float /*blue*/, float /*alpha*/) {}
    virtual void SpeakerColourChanged (std::size_t, float /*red*/, float /*green*/, float /*blue*/, float /*alpha*/) {}
    virtual void GridColourChanged (float /*red*/, float /*green*/, float /*blue*/, float /*alpha*/) {}

    virtual void SourceApertureChanged (std::size_t, float /*degrees*/) {}
    virtual void SourceYawChanged (std::size_t, float /*degrees*/) {}
    virtual void SourceLabelChanged (std::size_t, const qel::String&) {}
    virtual void SpeakerNameChanged (std::size_t, const qel::String&) {}
    virtual void SourceRadiusChanged (std::size_t, float /*metres*/) {}

    virtual void ListenerPositionChanged (const qel::Point3&, PlaneBase&) {}
    virtual void ListenerYawChanged (float /*degrees*/) {}
    virtual void ListenerPitchChanged (float /*degrees*/) {}
    virtual void ListenerRollChanged (float /*degrees*/) {}
    virtual void ListenerOrientationChanged (float /*yaw*/, float /*pitch*/, float /*roll*/) {}

    /** The selection of sources, one flag each. */
    virtual void SelectionChanged (const Flags&, PlaneBase&) {}
    virtual void SpeakerSelectionChanged (std::size_t, bool, PlaneBase&) {}

    /** On mouse down and every drag step. */
    virtual void PointerMoved (const qel::Point3&) {}
    /** True when the left button is pressed, false on mouse up. */
    virtual void PointerButtonChanged (bool) {}
    virtual void SourceDoubleClicked (std::size_t, PlaneBase&) {}
    /** A key that the plane forwards; the key table has the numbers. */
    virtual void KeyCommand (int, PlaneBase&) {}
    /** Anything in PlaneOptions changed. */
    virtual void OptionsChanged (PlaneBase&) {}

    /** Which areas contain the object, one flag per area; called after every move, changed or not. */
    virtual void SourceAreasChanged (std::size_t, const Flags&, PlaneBase&) {}
    virtual void SpeakerAreasChanged (std::size_t, const Flags&, PlaneBase&) {}
    virtual void ListenerAreasChanged (const Flags&, PlaneBase&) {}
};

}
