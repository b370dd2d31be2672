#include "PlaneRecorder.h"

#include <gmock/gmock.h>

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

qel::OSCMessage Find (PlaneComponent& plane, const char* address)
{
    for (const auto& message : StateOf (plane))
        if (message.address().text() == address)
            return message;
    return {};
}

}

TEST (PlaneOsc, NumbersFromOneAndWalksInOrder)
{
    PlaneComponent plane (2, 3, 300);
    const auto state = StateOf (plane);
    EXPECT_EQ (state.size(), 1u + 2 * 14 + 1 + 3 * 7 + 8 + 6 + 4 + 1 + 8 + 1);
    EXPECT_EQ (state.front().address().text(), "/numsources");
    EXPECT_EQ (state[1].address().text(), "/source/1/label/text");
    EXPECT_EQ (state.back().address().text(), "/legend/visible");
    EXPECT_TRUE (Find (plane, "/speaker/3/aed").has ("fff", true));
    EXPECT_TRUE (Find (plane, "/source/1/color").has ("ffff", true));
}

TEST (PlaneOsc, ShowsWhatWasSet)
{
    PlaneComponent plane (1, 0, 300);
    plane.SetSourcePosition (0, { 2, 0, 0 }, false);
    plane.SetSourceYaw (0, 190, false);
    plane.SetGridMode ("square");
    plane.SetBackgroundImageScale (50);
    plane.SetSourceLabel (0, "Flöte", false);
    const auto aed = Find (plane, "/source/1/aed");
    EXPECT_NEAR (aed[0].asFloat(), 90, 1e-3f);
    EXPECT_NEAR (aed[1].asFloat(), 0, 1e-3f);
    EXPECT_NEAR (aed[2].asFloat(), 2, 1e-3f);
    EXPECT_NEAR (Find (plane, "/source/1/yaw/angle")[0].asFloat(), -170, 1e-3f);
    EXPECT_EQ (Find (plane, "/grid/mode")[0].asText(), "cartesian");
    EXPECT_FLOAT_EQ (Find (plane, "/backgroundimage/scale")[0].asFloat(), 0.5f);
    EXPECT_EQ (Find (plane, "/backgroundimage/quality")[0].asText(), "medium");
    EXPECT_EQ (Find (plane, "/source/1/label/text")[0].asText(), "Flöte");
    EXPECT_EQ (Find (plane, "/source/1/yaw/mode")[0].asText(), "yawconstraint");
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
