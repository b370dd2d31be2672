#pragma once
#include "gui/verb/HalcyraParameters.h"

#include <juce_gui_basics/juce_gui_basics.h>

namespace halcyra
{

/** A constant rectangle, in pixels. */
struct Box
{
    int x, y, width, height;

    [[nodiscard]] juce::Rectangle<int> rectangle() const { return { x, y, width, height }; }
};

/** Where one parameter's label, slider and value stand on the time structure page; a switch has no value. */
struct ControlPlace
{
    HalcyraReverbParameter number;
    Box label, control, value;
    float labelFont;
    bool labelOnRight; // the label's text ends at its right edge, beside the slider
    const char* labelName = "new label";
};

/** All rows of the page, in the order in which they are created. The page has one size, 920 by 400. */
inline constexpr ControlPlace timeStructurePlaces[] = {
    { parameter::tr0, { -16, 200, 82, 10 }, { 72, 200, 120, 10 }, { 200, 200, 60, 10 }, 11, true },
    { parameter::trl, { -16, 224, 82, 10 }, { 72, 224, 120, 10 }, { 200, 224, 60, 10 }, 11, true },
    { parameter::trm, { -16, 248, 82, 10 }, { 72, 248, 120, 10 }, { 200, 248, 60, 10 }, 11, true },
    { parameter::trh, { -16, 272, 82, 10 }, { 72, 272, 120, 10 }, { 200, 272, 60, 10 }, 11, true },
    { parameter::fl, { -16, 329, 82, 10 }, { 72, 329, 120, 10 }, { 200, 330, 60, 10 }, 11, true },
    { parameter::fh, { -16, 353, 82, 10 }, { 72, 353, 120, 10 }, { 200, 354, 60, 10 }, 11, true },
    { parameter::earlyStart,
      { 315, 208, 82, 10 },
      { 403, 208, 120, 10 },
      { 523, 208, 56, 10 },
      12,
      true,
      "EarlyMinLabel" },
    { parameter::earlyEnd,
      { 315, 224, 82, 10 },
      { 403, 224, 120, 10 },
      { 523, 224, 56, 10 },
      12,
      true,
      "EarlyMaxLabel" },
    { parameter::earlyDistr,
      { 315, 240, 82, 10 },
      { 403, 240, 120, 10 },
      { 523, 240, 56, 10 },
      12,
      true,
      "EarlyDistrLabel" },
    { parameter::earlyShape,
      { 315, 256, 82, 10 },
      { 403, 256, 120, 10 },
      { 523, 256, 56, 10 },
      12,
      true,
      "EarlyShapeLabel" },
    { parameter::earlyWidth,
      { 315, 272, 82, 10 },
      { 403, 272, 120, 10 },
      { 523, 272, 56, 10 },
      12,
      true,
      "EarlyWidthLabel" },
    { parameter::clusterStart,
      { 315, 288, 82, 10 },
      { 403, 288, 120, 10 },
      { 523, 288, 56, 10 },
      12,
      true,
      "ClusterMinLabel" },
    { parameter::clusterEnd,
      { 315, 304, 82, 10 },
      { 403, 304, 120, 10 },
      { 523, 304, 56, 10 },
      12,
      true,
      "ClusterMaxLabel" },
    { parameter::clusterDistr,
      { 315, 320, 82, 10 },
      { 403, 320, 120, 10 },
      { 523, 320, 56, 10 },
      12,
      true,
      "ClusterDistrLabel" },
    { parameter::reverbStart,
      { 315, 336, 82, 10 },
      { 403, 336, 120, 10 },
      { 523, 336, 56, 10 },
      12,
      true,
      "ReverbStartLabel" },
    { parameter::modalDensity,
      { 315, 352, 82, 10 },
      { 403, 352, 120, 10 },
      { 523, 352, 56, 10 },
      12,
      true,
      "ModalDensityLabel" },
    { parameter::gain, { 608, 200, 82, 10 }, { 695, 200, 120, 10 }, { 816, 200, 56, 10 }, 11, true },
    { parameter::air, { 656, 223, 82, 20 }, { 632, 223, 20, 20 }, {}, 12, false },
    { parameter::airFrequency, { 624, 255, 80, 10 }, { 695, 255, 120, 10 }, { 816, 256, 60, 10 }, 11, false },
    { parameter::infinite, { 656, 285, 82, 20 }, { 632, 284, 20, 20 }, {}, 12, false },
};

/** The room size has no number of its own. */
inline constexpr Box roomLabelBox{ 315, 192, 82, 10 }, roomSliderBox{ 403, 192, 120, 10 },
    roomValueBox{ 523, 192, 56, 10 };

inline constexpr Box displayBox{ 8, 8, 904, 144 }, resetBox{ 632, 320, 91, 20 };

/** A frame with a title around some rows. */
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
