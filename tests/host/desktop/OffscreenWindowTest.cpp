#include "host/desktop/OffscreenWindow.h"

#include "support/Stage.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace
{

/** Records its events, one line each. */
class Notebook : public juce::Component
{
public:
    explicit Notebook (juce::Colour fill = juce::Colours::black) : colour (fill) { setWantsKeyboardFocus (true); }

    void mouseEnter (const juce::MouseEvent& e) override { note ("enter", e); }
    void mouseExit (const juce::MouseEvent& e) override { note ("exit", e); }
    void mouseDown (const juce::MouseEvent& e) override { note (e.mods.isRightButtonDown() ? "right" : "down", e); }
    void mouseDrag (const juce::MouseEvent& e) override { note (e.mods.isShiftDown() ? "shift-drag" : "drag", e); }
    void mouseUp (const juce::MouseEvent& e) override { note ("up", e); }
    void mouseDoubleClick (const juce::MouseEvent& e) override { note ("double", e); }
    void mouseWheelMove (const juce::MouseEvent& e, const juce::MouseWheelDetails& turn) override
    {
        note (turn.deltaY > 0 ? "away" : "near", e);
    }

    bool keyPressed (const juce::KeyPress& press) override
    {
        lines.push_back ("key " + press.getTextDescription().toStdString());
        return true;
    }

    void paint (juce::Graphics& g) override
    {
        g.fillAll (colour);
        ++paints;
    }

    std::vector<std::string> take() { return std::exchange (lines, {}); }

    int paints = 0;
    juce::Colour colour;

private:
    void note (const char* what, const juce::MouseEvent& e)
    {
        lines.push_back (what + (" " + juce::String (e.x) + " " + juce::String (e.y)).toStdString());
    }

    std::vector<std::string> lines;
};

class OffscreenWindowTest : public testing::Test
{
protected:
    OffscreenWindowTest()
    {
        back.setBounds (0, 0, 200, 100);
        front.setBounds (50, 20, 40, 40);
        back.addAndMakeVisible (front);
    }

    Notebook back{ juce::Colours::red };
    Notebook front{ juce::Colours::blue };
};

}

TEST_F (OffscreenWindowTest, PointerReachesThePartUnderItAndHoversIt)
{
    Stage stage (back);
    stage.move ({ 60, 30 });
    EXPECT_THAT (front.take(), ElementsAre ("enter 10 10"));
    EXPECT_TRUE (front.isMouseOver());

    stage.move ({ 10, 10 });
    EXPECT_THAT (front.take(), ElementsAre ("exit -40 -10"));
    EXPECT_FALSE (front.isMouseOver());
}

TEST_F (OffscreenWindowTest, PressedPartKeepsThePointerBeyondTheEdge)
{
    Stage stage (back);
    stage.press ({ 60, 30 });
    front.take();
    stage.drag ({ 300, -40 }, juce::ModifierKeys::shiftModifier);
    stage.release ({ 300, -40 });
    EXPECT_THAT (front.take(), ElementsAre ("shift-drag 250 -60", "up 250 -60", "exit 250 -60"));
}

TEST_F (OffscreenWindowTest, OnlyADoubleClickIsOne)
{
    Stage stage (back);
    stage.click ({ 60, 30 });
    stage.click ({ 60, 30 });
    EXPECT_THAT (front.take(), ElementsAre ("enter 10 10", "down 10 10", "up 10 10", "down 10 10", "up 10 10"));

    stage.doubleClick ({ 60, 30 });
    EXPECT_THAT (front.take(), ElementsAre ("down 10 10", "up 10 10", "down 10 10", "up 10 10", "double 10 10"));
}

TEST_F (OffscreenWindowTest, RightButtonAndWheelArrive)
{
    Stage stage (back);
    stage.rightClick ({ 60, 30 });
    stage.wheel ({ 60, 30 }, -0.5F);
    EXPECT_THAT (front.take(), ElementsAre ("enter 10 10", "right 10 10", "up 10 10", "near 10 10"));
}

TEST_F (OffscreenWindowTest, KeysGoToTheContentAtFirstAndToWhatWasClicked)
{
    Stage stage (back);
    stage.key ("ctrl + w");
    EXPECT_THAT (back.take(), ElementsAre ("key ctrl + W"));

    stage.click ({ 60, 30 });
    front.take();
    stage.key ("cursor left");
    EXPECT_THAT (front.take(), ElementsAre ("key cursor left"));
}

TEST_F (OffscreenWindowTest, PictureFollowsWhatWasRepaintedAndNothingElse)
{
    Stage stage (back);
    EXPECT_EQ (stage.picture().getPixelAt (10, 10), juce::Colours::red);
    EXPECT_EQ (stage.picture().getPixelAt (60, 30), juce::Colours::blue);

    const auto paintsBefore = back.paints;
    EXPECT_EQ (stage.picture().getPixelAt (60, 30), juce::Colours::blue);
    EXPECT_EQ (back.paints, paintsBefore);

    front.colour = juce::Colours::green;
    front.repaint();
    EXPECT_EQ (stage.picture().getPixelAt (60, 30), juce::Colours::green);
    EXPECT_EQ (stage.picture().getPixelAt (10, 10), juce::Colours::red);
}

TEST_F (OffscreenWindowTest, HiddenWindowTakesNoEventsAndComesBackAsItWas)
{
    desktop::OffscreenWindow window;
    bench::PeerInput input (back);
    EXPECT_FALSE (input.click ({ 60, 30 }));

    window.create ("title", { 800, 50, 205, 122 });
    window.attach (&back);
    EXPECT_FALSE (input.click ({ 60, 30 }));

    window.show();
    EXPECT_TRUE (input.click ({ 60, 30 }));
    window.hide();
    EXPECT_FALSE (input.click ({ 60, 30 }));
    EXPECT_TRUE (window.isOccupied());

    window.show();
    EXPECT_TRUE (input.click ({ 60, 30 }));
    EXPECT_EQ (back.getScreenPosition(), juce::Point<int> (800, 50));

    back.getPeer()->setMinimised (true);
    window.show();
    EXPECT_FALSE (back.getPeer()->isMinimised());
    window.destroy();
    EXPECT_FALSE (window.exists());
    EXPECT_FALSE (input.click ({ 60, 30 }));
}

TEST_F (OffscreenWindowTest, TwoWindowsShareOneFocus)
{
    Notebook other;
    other.setSize (50, 50);
    Stage first (back);
    Stage second (other);
    EXPECT_TRUE (other.hasKeyboardFocus (false));

    first.key ("w");
    EXPECT_TRUE (back.hasKeyboardFocus (false));
    EXPECT_FALSE (other.hasKeyboardFocus (false));
    EXPECT_THAT (back.take(), ElementsAre ("key W"));

    first.click ({ 60, 30 });
    second.key ("v");
    front.take();
    first.key ("u");
    EXPECT_THAT (front.take(), ElementsAre ("key U")) << "what had the keyboard in its window has it again";
}

TEST_F (OffscreenWindowTest, CloseButtonIsHandedOn)
{
    desktop::OffscreenWindow window;
    int pressed = 0;
    window.onCloseButton = [&pressed] { ++pressed; };
    window.create ("title", { 0, 0, 200, 100 });
    window.attach (&back);
    window.show();
    back.getPeer()->handleUserClosingWindow();
    EXPECT_EQ (pressed, 1);
    EXPECT_TRUE (back.isShowing());
}

TEST_F (OffscreenWindowTest, MenusOpenInsideTheWindowAndTakeTheKeys)
{
    struct Look : juce::LookAndFeel_V2
    {
        juce::Component* getParentComponentForMenuOptions (const juce::PopupMenu::Options& options) override
        {
            return options.getTargetComponent()->getTopLevelComponent();
        }
    } look;
    back.setSize (300, 300);
    Stage stage (back);
    juce::PopupMenu menu;
    menu.setLookAndFeel (&look);
    menu.addItem (1, "one");
    menu.addItem (2, "two");
    int chosen = -1;
    menu.showMenuAsync (juce::PopupMenu::Options().withTargetComponent (back).withMousePosition(),
                        [&chosen] (int id) { chosen = id; });
    bench::pumpGui();
    ASSERT_NE (juce::Component::getCurrentlyModalComponent(), nullptr);
    stage.key ("cursor down");
    stage.key ("cursor down");
    stage.key ("return");
    EXPECT_EQ (chosen, 2);
}
