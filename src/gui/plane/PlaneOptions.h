#pragma once
#include <juce_graphics/juce_graphics.h>

#include <cstdint>

namespace lumo
{

/** The view's flags, as copied by PlaneBase::GetOptions. topView and frontView are always opposite. */
struct PlaneOptions
{
    bool sourcesVisible = true;
    bool speakersVisible = true;
    bool speakersEditable = false;
    bool sourcesEditable = true;
    bool listenerEditable = false;
    bool circularConstraint = false;
    bool radiusConstraint = false;
    bool listenerSelected = false; // internal to the plane: not copied by GetOptions
    bool backgroundImageVisible = false;
    bool radiusVisible = false;
    bool listenerVisible = true;
    bool shoeboxVisible = false;
    bool angularDivisionsVisible = true;
    bool apertureVisible = true;
    bool hullVisible = false;
    bool speakersRadiusVisible = false;
    bool speakersProjectionVisible = false;
    bool anchorsVisible = false;
    bool anchorsLabelVisible = false;
    bool areasVisible = false;
    bool areasMonitoring = false;
    bool topView = true;
    bool frontView = false;
    bool headphonesVisible = false;
    float zoom = 1.0f;
    bool triangulationVisible = false;
    bool legendVisible = true;
    bool speakersLevelsVisible = false;
    bool sourcesLevelsVisible = false;
    bool zoomLocked = false;
    bool rightClickLocked = false;
    std::int32_t gridMode = 1;
    float gridSpacing = 1.0f; // metres
    std::uint32_t gridNumLines = 5;
    std::uint32_t gridNumAngularDivisions = 8;
    juce::Colour gridColour = juce::Colours::white;
    bool gridDashed = false;
};

}
