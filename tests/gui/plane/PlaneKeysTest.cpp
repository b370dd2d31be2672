#include "PlaneOnStage.h"
#include "gui/plane/interaction/PlaneMenu.h"

using lumo::PlaneComponent;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using Keys = juce::ModifierKeys;

struct KeyRow
{
    int code, modifiers;
    std::vector<std::string> told;

    friend std::ostream& operator<< (std::ostream& out, const KeyRow& row)
    {
        return out << "code " << row.code << " with " << row.modifiers;
    }
};

class PlaneKeys : public PlaneOnStage, public testing::WithParamInterface<KeyRow>
{};

TEST_P (PlaneKeys, DoWhatTheTableSays)
{
    EXPECT_TRUE (plane.keyPressed (juce::KeyPress (GetParam().code, GetParam().modifiers, 0)));
    EXPECT_EQ (heard.Take(), GetParam().told);
}

INSTANTIATE_TEST_SUITE_P (
    Rows, PlaneKeys,
    testing::Values (
        KeyRow{ 'w', Keys::ctrlModifier, { "command 0" } }, KeyRow{ '+', Keys::ctrlModifier, { "command 2" } },
        KeyRow{ ',', Keys::ctrlModifier, { "command 2" } }, KeyRow{ '-', Keys::ctrlModifier, { "command 3" } },
        KeyRow{ 0xAD, Keys::ctrlModifier, { "command 3" } }, // the numeric keypad's, on X11
        KeyRow{ 0xAD, 0, { "options" } }, KeyRow{ 'm', 0, { "command 13" } }, KeyRow{ '+', 0, { "options" } },
        KeyRow{ '+', Keys::shiftModifier, { "options" } }, KeyRow{ '-', 0, { "options" } }, KeyRow{ '=', 0, {} },
        KeyRow{ 'a', 0, { "options" } }, KeyRow{ 's', 0, { "options" } }, KeyRow{ 'l', 0, { "options" } },
        KeyRow{ 'c', 0, { "options" } }, KeyRow{ 'v', 0, { "options" } }, KeyRow{ 'g', 0, { "options" } },
        KeyRow{ 'a', Keys::ctrlModifier, { "selection 1111" } },
        KeyRow{ juce::KeyPress::tabKey, 0, { "selection 1000" } }, KeyRow{ juce::KeyPress::rightKey, 0, { "options" } },
        KeyRow{ juce::KeyPress::upKey, 0, { "options" } }));

TEST_F (PlaneOnStage, KeysOutsideTheTableTravelOn)
{
    for (const auto& key :
         { juce::KeyPress ('q', 0, 0), juce::KeyPress ('v', Keys::shiftModifier, 0), juce::KeyPress ('w', 0, 0) })
        EXPECT_FALSE (plane.keyPressed (key)) << key.getTextDescription();
    EXPECT_THAT (heard.Take(), IsEmpty());
}

TEST_F (PlaneOnStage, ArrowsStepByATenthOfTheWidth)
{
    const auto& view = plane.GetSurface().viewTransform;
    plane.keyPressed (juce::KeyPress (juce::KeyPress::rightKey));
    EXPECT_FLOAT_EQ (view.xOffset, -30);
    plane.keyPressed (juce::KeyPress (juce::KeyPress::upKey));
    EXPECT_FLOAT_EQ (view.yOffset, -30);
    plane.SetFrontView (true);
    plane.keyPressed (juce::KeyPress (juce::KeyPress::downKey));
    EXPECT_FLOAT_EQ (view.zOffset, 30);
    EXPECT_FLOAT_EQ (view.yOffset, -30);
}

TEST_F (PlaneOnStage, TabWalksAndEndsOnASourceThatCannotBeEdited)
{
    plane.SetSourceEditable (2, false, false);
    const auto press = [this] { plane.keyPressed (juce::KeyPress (juce::KeyPress::tabKey)); };
    press();
    press();
    EXPECT_EQ (Selected(), "0100");
    press();
    EXPECT_EQ (Selected(), "0000");
    plane.SetSelection ({ true, true, false, false }, false);
    press();
    EXPECT_EQ (Selected(), "1100") << "more than one stays";
}

TEST_F (PlaneOnStage, AKeyThatSelectsSourcesLetsGoOfTheSpeakerAndTheListener)
{
    plane.SetNumSpeakers (1, false);
    plane.SetListenerEditable (true);
    plane.SetSpeakerPosition (0, { 0.5f, 0.5f, 0 }, false);
    for (const auto& key : { juce::KeyPress ('a', Keys::ctrlModifier, 0), juce::KeyPress (juce::KeyPress::tabKey) }) {
        stage.click (At ({ 0.5f, 0.5f, 0 }));
        EXPECT_EQ (plane.GetSelectedSpeaker(), 0);
        plane.keyPressed (key);
        EXPECT_THAT (heard.Take ("speakerselection"), ElementsAre ("speakerselection 0 on", "speakerselection 0 off"));
        stage.click (At ({}));
        plane.keyPressed (key);
        EXPECT_FALSE (plane.GetSurface().options.listenerSelected);
    }
}

TEST_F (PlaneOnStage, EveryMenuIdTurnsItsSwitchOver)
{
    using lumo::PlaneOptions;
    const struct
    {
        int id;
        bool PlaneOptions::*state;
    } rows[] = { { 1, &PlaneOptions::speakersEditable },
                 { 2, &PlaneOptions::sourcesEditable },
                 { 3, &PlaneOptions::listenerEditable },
                 { 4, &PlaneOptions::speakersVisible },
                 { 6, &PlaneOptions::circularConstraint },
                 { 7, &PlaneOptions::topView },
                 { 8, &PlaneOptions::frontView },
                 { 9, &PlaneOptions::headphonesVisible },
                 { 10, &PlaneOptions::apertureVisible },
                 { 11, &PlaneOptions::backgroundImageVisible },
                 { 12, &PlaneOptions::radiusVisible },
                 { 13, &PlaneOptions::listenerVisible },
                 { 14, &PlaneOptions::shoeboxVisible },
                 { 15, &PlaneOptions::hullVisible },
                 { 16, &PlaneOptions::angularDivisionsVisible },
                 { 17, &PlaneOptions::speakersRadiusVisible },
                 { 18, &PlaneOptions::speakersProjectionVisible } };
    for (const auto& row : rows) {
        PlaneComponent own (2, 2, 300);
        PlaneRecorder told (own);
        lumo::PlaneOptions before, after;
        own.GetOptions (before);
        own.MenuItemChosen (row.id);
        own.GetOptions (after);
        EXPECT_NE (before.*row.state, after.*row.state) << row.id;
        EXPECT_THAT (told.Take(), Contains ("options")) << row.id;
    }
    for (const int id : { 0, 5, 19, -1 })
        plane.MenuItemChosen (id);
    EXPECT_THAT (heard.Take(), IsEmpty());
}

TEST_F (PlaneOnStage, TheMenuShowsTheStateInOrder)
{
    std::vector<std::string> items;
    const auto menu = lumo::Plane::MakePlaneMenu (plane);
    for (juce::PopupMenu::MenuItemIterator each (menu); each.next();) {
        const auto& item = each.getItem();
        items.push_back (item.isSeparator ? "-" : (item.isTicked ? "* " : "  ") + item.text.toStdString());
    }
    EXPECT_THAT (items, ElementsAre ("* speakers editable", "* sources editable", "  listener editable", "-",
                                     "* show speakers", "* show source aperture", "* show listener", "-",
                                     "  constrains to circular", "-", "* Top View (xy)", "  Front View (xz)", "-"));
}

TEST (PlaneMenu, IsIgnoredWhenThePlaneIsGone)
{
    juce::Component room;
    room.setSize (300, 300);
    auto plane = std::make_unique<PlaneComponent> (2, 2, 300);
    room.addAndMakeVisible (*plane);
    Stage stage (room);
    stage.press ({ 100, 100 }, juce::ModifierKeys::rightButtonModifier);
    plane.reset();
    juce::PopupMenu::dismissAllActiveMenus();
    stage.release ({ 100, 100 });
    EXPECT_EQ (room.getNumChildComponents(), 0);
}
