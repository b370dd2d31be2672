#include "host/desktop/JuceWindow.h"

namespace desktop
{

JuceWindow::Shell::Shell (JuceWindow& windowToServe, const juce::String& title)
    : juce::DocumentWindow (title, juce::Colours::lightgrey, minimiseButton | closeButton, false),
      window (windowToServe)
{
    setUsingNativeTitleBar (true);
    setResizable (false, false);
}

void JuceWindow::Shell::closeButtonPressed()
{
    if (window.onCloseButton)
        window.onCloseButton();
}

void JuceWindow::Shell::moved()
{
    DocumentWindow::moved();
    window.keepPlace();
}

void JuceWindow::Shell::focusGained (FocusChangeType)
{
    // A window system focuses the window as a whole, often long after it was shown.
    if (auto* content = getContentComponent(); content != nullptr && content->isShowing())
        content->grabKeyboardFocus();
}

JuceWindow::JuceWindow() = default;
JuceWindow::~JuceWindow() = default;

bool JuceWindow::create (const juce::String& title, juce::Rectangle<int> frame)
{
    destroy();
    placeWhenHidden = {};
    createdAt = frame.getPosition();
    shell = makeShell (title);
    shell->setBounds (frame);
    shell->Component::addToDesktop (shell->getDesktopWindowStyleFlags());
    return true;
}

void JuceWindow::show()
{
    isWanted = true;
    if (isOccupied())
        bringUp();
}

void JuceWindow::bringUp()
{
    if (! placeWhenHidden.isEmpty())
        shell->setBounds (placeWhenHidden);
    shell->setVisible (true);
    if (shell->isMinimised())
        shell->setMinimised (false);
    shell->toFront (true);
}

juce::Rectangle<int> JuceWindow::truePlace() const
{
    const auto* peer = shell->getPeer();
    const auto frame = peer == nullptr ? juce::ComponentPeer::OptionalBorderSize() : peer->getFrameSizeIfPresent();
    const auto corner = frame ? juce::Point<int> (frame->getLeft(), frame->getTop()) : juce::Point<int>();
    const auto known = placeWhenHidden.isEmpty() ? createdAt + corner : placeWhenHidden.getPosition();
    const auto place = shell->getBounds();
    return place.getPosition() + corner == known ? place.withPosition (known) : place;
}

void JuceWindow::keepPlace()
{
    if (shell != nullptr && shell->isVisible() && ! placeWhenHidden.isEmpty())
        shell->setTopLeftPosition (truePlace().getPosition());
}

void JuceWindow::hide()
{
    isWanted = false;
    if (shell->isVisible())
        placeWhenHidden = truePlace();
    shell->setVisible (false);
}

void JuceWindow::destroy()
{
    isWanted = false;
    if (shell != nullptr)
        shell->clearContentComponent();
    shell.reset();
}

void JuceWindow::setTitle (const juce::String& title) { shell->setName (title); }

void JuceWindow::attach (juce::Component* component)
{
    if (component == nullptr) {
        shell->clearContentComponent();
        return;
    }
    shell->setContentNonOwned (component, true);
    if (isWanted && ! shell->isVisible())
        bringUp();
}

bool JuceWindow::isOccupied() const { return shell != nullptr && shell->getContentComponent() != nullptr; }

}
