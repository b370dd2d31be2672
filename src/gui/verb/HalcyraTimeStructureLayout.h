#pragma once
#include "reverb/HalcyraParameters.h"

#include <juce_gui_basics/juce_gui_basics.h>

namespace halcyra
{

/** A constexpr rectangle in pixels. */
struct Box
{
    int x, y, width, height;

    [[nodiscard]] juce::Rectangle<int> rectangle() const { return { x, y, width, height }; }
};

/** Where a parameter's label, slider and value are on the time structure page; a switch has no value. */
struct ControlPlace
{
    HalcyraReverbParameter number;
    Box label, control, value;
    float labelFont;
    bool labelOnRight; // the label is right-aligned, next to the slider
    const char* labelName = "new label";
};

/** A row in the left frames: frequency values sit a pixel lower than their sliders. */
constexpr ControlPlace leftRow (HalcyraReverbParameter number, int y, int valueY)
{
    return { number, { -16, y, 82, 10 }, { 72, y, 120, 10 }, { 200, valueY, 60, 10 }, 11, true };
}

/** A row in the middle frame. */
constexpr ControlPlace middleRow (HalcyraReverbParameter number, int y, const char* labelName)
{
    return { number, { 315, y, 82, 10 }, { 403, y, 120, 10 }, { 523, y, 56, 10 }, 12, true, labelName };
}

/** All rows of the page, in creation order. The page is always 920 by 400 pixels. */
inline constexpr ControlPlace timeStructurePlaces[] = {
    leftRow (parameter::tr0, 200, 200),
    leftRow (parameter::trl, 224, 224),
    leftRow (parameter::trm, 248, 248),
    leftRow (parameter::trh, 272, 272),
    leftRow (parameter::fl, 329, 330),
    leftRow (parameter::fh, 353, 354),
    middleRow (parameter::earlyStart, 208, "EarlyMinLabel"),
    middleRow (parameter::earlyEnd, 224, "EarlyMaxLabel"),
    middleRow (parameter::earlyDistr, 240, "EarlyDistrLabel"),
    middleRow (parameter::earlyShape, 256, "EarlyShapeLabel"),
    middleRow (parameter::earlyWidth, 272, "EarlyWidthLabel"),
    middleRow (parameter::clusterStart, 288, "ClusterMinLabel"),
    middleRow (parameter::clusterEnd, 304, "ClusterMaxLabel"),
    middleRow (parameter::clusterDistr, 320, "ClusterDistrLabel"),
    middleRow (parameter::reverbStart, 336, "ReverbStartLabel"),
    middleRow (parameter::modalDensity, 352, "ModalDensityLabel"),
    { parameter::gain, { 608, 200, 82, 10 }, { 695, 200, 120, 10 }, { 816, 200, 56, 10 }, 11, true },
    { parameter::air, { 656, 223, 82, 20 }, { 632, 223, 20, 20 }, {}, 12, false },
    { parameter::airFrequency, { 624, 255, 80, 10 }, { 695, 255, 120, 10 }, { 816, 256, 60, 10 }, 11, false },
    { parameter::infinite, { 656, 285, 82, 20 }, { 632, 284, 20, 20 }, {}, 12, false },
};

/** The room size has no parameter number. */
inline constexpr Box roomLabelBox{ 315, 192, 82, 10 }, roomSliderBox{ 403, 192, 120, 10 },
    roomValueBox{ 523, 192, 56, 10 };

inline constexpr Box displayBox{ 8, 8, 904, 144 }, resetBox{ 632, 320, 91, 20 };

/** A titled frame around some rows. */
struct GroupPlace
{
    const char* name;
    const char* text;
    Box box;
};

inline constexpr GroupPlace timeStructureGroups[] = {
    { "new group", "options", { 616, 168, 272, 224 } },
    { "new group", "frequencies", { 16, 302, 264, 88 } },
    { "new group", "Decay Times", { 16, 168, 264, 128 } },
    { "TimeStructureGroup", "Time Structure", { 304, 168, 296, 224 } },
};

}
