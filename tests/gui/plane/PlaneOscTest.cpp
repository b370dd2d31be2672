#include "PlaneRecorder.h"

#include <gmock/gmock.h>

#include <cmath>
#include <sstream>

using lumo::PlaneComponent;
using testing::ElementsAre;

namespace
{

void Flatten (const qel::OSCBundle& bundle, std::vector<qel::OSCMessage>& messages)
{
    for (const auto& element : bundle)
        if (element.isMessage())
            messages.push_back (element.message());
        else
            Flatten (element.bundle(), messages);
}

std::vector<qel::OSCMessage> StateOf (PlaneComponent& plane)
{
    std::vector<qel::OSCMessage> messages;
    Flatten (plane.getOscState(), messages);
    return messages;
}

/** The address, and each argument after its type, to three decimals: "/numsources i2". */
std::string TextOf (const qel::OSCMessage& message)
{
    std::ostringstream text;
    text << message.address().text().c_str();
    for (std::size_t i = 0; i < message.size(); ++i) {
        const auto& argument = message[i];
        text << ' ' << argument.tag();
        if (argument.is ('n'))
            text << std::round (1000 * argument.asFloat()) / 1000;
        else
            text << argument.asText().c_str();
    }
    return text.str();
}

}

TEST (PlaneOsc, NumbersFromOneAndWalksInOrder)
{
    PlaneComponent plane (2, 3, 300);
    const auto state = StateOf (plane);
    EXPECT_EQ (state.size(), 1u + 2 * 14 + 1 + 3 * 7 + 8 + 6 + 4 + 1 + 8 + 1);
    EXPECT_EQ (state.front().address().text(), "/numsources");
    EXPECT_EQ (state[1].address().text(), "/source/1/label/text");
    EXPECT_EQ (state[15].address().text(), "/source/2/label/text");
    EXPECT_EQ (state.back().address().text(), "/legend/visible");
}

TEST (PlaneOsc, ShowsWhatWasSet)
{
    PlaneComponent plane (1, 1, 300);
    plane.SetSourcePosition (0, { 2, 0, 2 }, false);
    plane.SetSourceYaw (0, 190, false);
    plane.SetSourceAperture (0, 70, false);
    plane.SetSourceApertureColour (0, juce::Colour (0xFF336699));
    plane.SetSourceLabel (0, "Flöte", false);
    plane.SetSourceLabelColour (0, juce::Colour (0x33FF6699));
    plane.SetSourceProportion (0, 0.125f);
    plane.SetSourceColour (0, 0.2f, 0.4f, 0.6f, 0.8f, false);
    plane.SetSourceCoordinatesVisible (0, false);
    plane.SetSpeakerPosition (0, { 0, 3, -3 }, false);
    plane.SetSpeakerName (0, "left", false);
    plane.SetSpeakerNameVisible (0, false);
    plane.SetSpeakerProportion (0, 0.25f);
    plane.SetSpeakerColour (0, 0.8f, 0.6f, 0.4f, 0.2f, false);
    plane.SetListenerPosition ({ -1, 0, 0 }, false);
    plane.SetListenerOrientation (10, 20, 30, false);
    plane.SetListenerProportion (0.375f);
    plane.SetHeadphonesVisible (true);
    plane.SetGridMode ("square");
    plane.SetGridSpacing (0.5f);
    plane.SetGridNumLines (7);
    plane.SetGridNumAngularDivisions (9);
    plane.SetGridDashed (true);
    plane.SetGridColour (juce::Colour (0xFF996633), false);
    plane.SetBackgroundColour (juce::Colour (0xFF669933));
    plane.SetBackgroundImageOpacity (0.75f);
    plane.SetBackgroundImageScale (50);
    plane.SetBackgroundImageAngle (0.5f);
    plane.SetBackgroundImageXOffset (11);
    plane.SetBackgroundImageYOffset (12);
    std::string state;
    for (const auto& message : StateOf (plane))
        state += TextOf (message) + "\n";
    EXPECT_EQ (state,
               "/numsources i1\n"
               "/source/1/label/text sFlöte\n/source/1/label/visible T\n/source/1/label/color f1 f0.4 f0.6 f0.2\n"
               "/source/1/visible T\n/source/1/editable T\n/source/1/aed f90 f45 f2.828\n"
               "/source/1/aperture/angle f70\n/source/1/aperture/visible T\n"
               "/source/1/aperture/color f0.2 f0.4 f0.6 f1\n/source/1/yaw/angle f-170\n"
               "/source/1/yaw/mode syawconstraint\n/source/1/proportion f0.125\n"
               "/source/1/color f0.2 f0.4 f0.6 f0.8\n/source/1/coordinates/visible F\n"
               "/numspeakers i1\n"
               "/speaker/1/name/text sleft\n/speaker/1/name/visible F\n/speaker/1/visible T\n/speaker/1/editable F\n"
               "/speaker/1/aed f0 f-45 f4.243\n/speaker/1/proportion f0.25\n/speaker/1/color f0.8 f0.6 f0.4 f0.2\n"
               "/listener/visible T\n/listener/editable F\n/listener/headphonesvisible T\n/listener/aed f-90 f0 f1\n"
               "/listener/yaw f10\n/listener/pitch f20\n/listener/roll f30\n/listener/proportion f0.375\n"
               "/grid/mode scartesian\n/grid/spacing f0.5\n/grid/numlines i7\n/grid/numangulardivisions i9\n"
               "/grid/dashed T\n/grid/color f0.6 f0.4 f0.2 f1\n"
               "/axis/visible T\n/axis/label/visible T\n/axis/origin/visible T\n/axis/color f1 f1 f1 f1\n"
               "/background/color f0.4 f0.6 f0.2 f1\n"
               "/backgroundimage/file s\n/backgroundimage/visible F\n/backgroundimage/opacity f0.75\n"
               "/backgroundimage/scale f0.5\n/backgroundimage/angle f0.5\n/backgroundimage/xoffset f11\n"
               "/backgroundimage/yoffset f12\n/backgroundimage/quality smedium\n"
               "/legend/visible T\n");
}

struct WriteRow
{
    qel::OSCMessage message;
    bool consumed;
};

TEST (PlaneOsc, OnlyAxisAndLegendCanBeWritten)
{
    const auto to = [] (const char* address) { return qel::OSCMessage (qel::String (address)); };
    const WriteRow rows[] = {
        { to ("/axis/visible").add (false), true },
        { to ("/axis/label/visible").add (0), true },
        { to ("/axis/origin/visible").add (7), true },
        { to ("/legend/visible").add (true), true },
        { to ("/axis/color").add (1.0f).add (0.5f).add (0).add (1.0), true },
        { to ("/axis/color").add (1.0f).add (0.5f).add (0.0f), false },
        { to ("/axis/visible").add (1.0f), false },
        { to ("/axis/visible").add (true).add (true), false },
        { to ("/axis").add (true), false },
        { to ("/*/visible").add (true), false },
        { to ("/grid/mode").add ("square"), false },
        { to ("/source/1/visible").add (false), false },
    };
    PlaneComponent plane (1, 1, 300);
    PlaneRecorder heard (plane);
    for (const auto& row : rows)
        EXPECT_EQ (plane.processOscMessage (row.message), row.consumed) << row.message.address().text().c_str();
    const auto& surface = plane.GetSurface();
    EXPECT_FALSE (surface.axis.visible);
    EXPECT_FALSE (surface.axis.labelVisible);
    EXPECT_FALSE (surface.axis.originVisible) << "7 is not true";
    EXPECT_TRUE (surface.legend.visible);
    EXPECT_EQ (surface.axis.colour, juce::Colour::fromFloatRGBA (1, 0.5f, 0, 1));
    EXPECT_THAT (heard.Take(), ElementsAre()) << "a write tells nobody";
}
