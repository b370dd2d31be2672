#include "max/window/JuceWindow.h"

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

void JuceWindow::Shell::focusGained (FocusChangeType)
{
    // A window system gives the focus to the window as a whole, often long after it was shown.
    if (auto* content = getContentComponent(); content != nullptr && content->isShowing())
        content->grabKeyboardFocus();
}

JuceWindow::JuceWindow() = default;
JuceWindow::~JuceWindow() = default;

bool JuceWindow::create (const juce::String& title, juce::Rectangle<int> frame)
{
    destroy();
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
    shell->setVisible (true);
    if (shell->isMinimised())
        shell->setMinimised (false);
    shell->toFront (true);
}

void JuceWindow::hide()
{
    isWanted = false;
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
