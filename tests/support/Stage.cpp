#include "support/Stage.h"

#include "host/desktop/OffscreenPeer.h"

#include <gtest/gtest.h>

Stage::Stage (juce::Component& componentToShow) : component (componentToShow), input (componentToShow)
{
    window.create ("stage", { 100, 50, component.getWidth(), component.getHeight() });
    window.attach (&component);
    window.show();
    bench::pumpGui();
}

Stage::~Stage()
{
    juce::PopupMenu::dismissAllActiveMenus();
    bench::pumpGui();
    window.destroy();
    bench::pumpGui();
}

void Stage::move (juce::Point<int> position, juce::ModifierKeys keys)
{
    ASSERT_TRUE (input.move (position.toFloat(), keys));
    bench::pumpGui();
}

void Stage::press (juce::Point<int> position, juce::ModifierKeys keys)
{
    ASSERT_TRUE (input.press (position.toFloat(), keys));
    bench::pumpGui();
}

void Stage::drag (juce::Point<int> position, juce::ModifierKeys keys)
{
    ASSERT_TRUE (input.drag (position.toFloat(), keys));
    bench::pumpGui();
}

void Stage::release (juce::Point<int> position, juce::ModifierKeys keys)
{
    ASSERT_TRUE (input.release (position.toFloat(), keys));
    bench::pumpGui();
}

void Stage::click (juce::Point<int> position, juce::ModifierKeys keys)
{
    ASSERT_TRUE (input.click (position.toFloat(), keys));
    bench::pumpGui();
}

void Stage::rightClick (juce::Point<int> position) { click (position, juce::ModifierKeys::rightButtonModifier); }

void Stage::doubleClick (juce::Point<int> position, juce::ModifierKeys keys)
{
    ASSERT_TRUE (input.doubleClick (position.toFloat(), keys));
    bench::pumpGui();
}

void Stage::clickAgain (juce::Point<int> position)
{
    ASSERT_TRUE (input.clickAgain (position.toFloat()));
    bench::pumpGui();
}

void Stage::wheel (juce::Point<int> position, float delta, juce::ModifierKeys keys)
{
    ASSERT_TRUE (input.wheel (position.toFloat(), delta, keys));
    bench::pumpGui();
}

void Stage::dragFromTo (juce::Point<int> from, juce::Point<int> to, juce::ModifierKeys keys)
{
    press (from, keys);
    for (int step = 1; step <= 4; ++step)
        drag (from + (to - from) * step / 4, keys);
    release (to, keys);
}

void Stage::key (const juce::String& description)
{
    ASSERT_TRUE (input.key (juce::KeyPress::createFromDescription (description)));
    bench::pumpGui();
}

juce::Point<int> Stage::at (const juce::Component& part, juce::Point<int> point) const
{
    return component.getLocalPoint (&part, point);
}

juce::Point<int> Stage::at (const juce::Component& part) const { return at (part, part.getLocalBounds().getCentre()); }

juce::Image Stage::picture() const
{
    return dynamic_cast<desktop::OffscreenPeer&> (*component.getPeer()).picture().createCopy();
}
