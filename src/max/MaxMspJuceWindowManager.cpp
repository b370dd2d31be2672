#include "max/MaxMspJuceWindowManager.h"

#include "max/HostFunction.h"

#include <algorithm>
#include <cmath>
#include <limits>

using orvanemax::hostFunction;

namespace
{

// What a window's decoration adds to the component's size. The client area of a Windows window still ends up a few
// pixels smaller than the component.
constexpr int decorationWidth = 5;
constexpr int decorationHeight = 22;

/** Truncates towards zero; clamps to the range of int, and NaN becomes 0. */
int pixels (float value)
{
    using Limits = std::numeric_limits<int>;
    if (std::isnan (value))
        return 0;
    return static_cast<int> (std::clamp<double> (value, Limits::min(), Limits::max()));
}

/** The frame itself if any of it is visible, otherwise moved onto the main screen: the screen it was stored for may be
    gone. */
juce::Rectangle<int> onAScreen (juce::Rectangle<int> frame)
{
    const auto& displays = juce::Desktop::getInstance().getDisplays();
    for (const auto& display : displays.displays)
        if (displays.logicalToPhysical (display.totalArea).intersects (frame))
            return frame;
    const auto* main = displays.getPrimaryDisplay();
    return main == nullptr ? frame : frame.constrainedWithin (displays.logicalToPhysical (main->userArea));
}

/** The manager in the first atom of a deferred call; logs an error to the Max console if there is none. */
MaxMspJuceWindowManager* managerIn (t_object* owner, short argc, t_atom* argv)
{
    auto* manager = argc > 0 && argv != nullptr ? static_cast<MaxMspJuceWindowManager*> (atom_getobj (argv)) : nullptr;
    if (manager == nullptr)
        object_error (owner, "No MaxMspJuceWindowManager");
    return manager;
}

}

MaxMspJuceWindowManager::MaxMspJuceWindowManager (t_object* ownerToUse, juce::Component* componentToShow, bool)
    : window (orvanemax::makeNativeWindow (ownerToUse, componentToShow)),
      owner (ownerToUse),
      component (componentToShow),
      title (gensym ("window"))
{
    window->onCloseButton = [this] { close(); };
}

MaxMspJuceWindowManager::~MaxMspJuceWindowManager()
{
    if (! window->exists())
        return;

    refreshPosition();
    hide();
    const juce::MessageManagerLock lock;
    takeOut();
    window->destroy();
}

void MaxMspJuceWindowManager::leaveOwner()
{
    owner = nullptr;
    window->onCloseButton = nullptr;
    if (window->exists())
        hide();
}

void MaxMspJuceWindowManager::setTopLeft (int newTop, int newLeft)
{
    if (! moveable) {
        if (newTop != top || newLeft != left)
            object_warn (owner, "this window is not moveable");
        return;
    }

    top = newTop;
    left = newLeft;
    t_atom self;
    atom_setobj (&self, this);
    defer (owner, hostFunction<changeWindowTopLeftPoint_deferred>(), nullptr, 1, &self);
}

void MaxMspJuceWindowManager::setTopLeft (const float (&topLeft)[2])
{
    setTopLeft (pixels (topLeft[0]), pixels (topLeft[1]));
}

void MaxMspJuceWindowManager::setMoveable (bool isMoveable) noexcept { moveable = isMoveable; }

void MaxMspJuceWindowManager::setTitle (const char* text)
{
    title = gensym (text);
    if (window->exists())
        window->setTitle (juce::String::fromUTF8 (title->s_name));
}

void MaxMspJuceWindowManager::open (bool show)
{
    if (component == nullptr || owner == nullptr)
        return;
    if (window->exists())
        refreshPosition();

    t_atom arguments[2];
    atom_setobj (&arguments[0], this);
    atom_setlong (&arguments[1], show ? 1 : 0);
    defer (owner, hostFunction<open_deferred>(), nullptr, 2, arguments);
}

void MaxMspJuceWindowManager::close()
{
    if (window->exists())
        refreshPosition();

    t_atom self;
    atom_setobj (&self, this);
    defer (owner, hostFunction<close_deferred>(), nullptr, 1, &self);
}

void MaxMspJuceWindowManager::changeWindowTopLeftPoint_deferred (t_object* owner, t_symbol*, short argc, t_atom* argv)
{
    if (argc != 1 || argv == nullptr) {
        object_bug (owner, "invalid number of arguments in changeWindowTopLeftPoint_deferred : %d", argc);
        return;
    }
    // A position applies to the next window; the open one is never moved.
    managerIn (owner, argc, argv);
}

void MaxMspJuceWindowManager::open_deferred (t_object* owner, t_symbol*, short argc, t_atom* argv)
{
    auto* const manager = managerIn (owner, argc, argv);
    if (manager == nullptr || manager->component == nullptr)
        return;

    const bool show = argc > 1 && atom_getfloat (argv + 1) != 0.0;
    if (manager->window->exists() && manager->window->isOccupied())
        manager->bringBack (show);
    else
        manager->build (show);
}

void MaxMspJuceWindowManager::close_deferred (t_object* owner, t_symbol*, short argc, t_atom* argv)
{
    if (auto* const manager = managerIn (owner, argc, argv))
        manager->hide();
}

void MaxMspJuceWindowManager::refreshPosition() noexcept
{
    // The platform does not report the window's position, so a later window opens in the corner.
    top = 0;
    left = 0;
}

void MaxMspJuceWindowManager::bringBack (bool show)
{
    if (component->getPeer() == nullptr)
        window->attach (component);
    window->show();
    component->setVisible (show);
    component->toFront (true);
}

void MaxMspJuceWindowManager::build (bool show)
{
    const juce::MessageManagerLock lock;
    component->setVisible (false);
    component->removeFromDesktop();
    const auto area = juce::Rectangle<int> (component->getWidth(), component->getHeight());

    const juce::Rectangle<int> frame (left, top, area.getWidth() + decorationWidth,
                                      area.getHeight() + decorationHeight);
    if (! window->create (juce::String::fromUTF8 (title->s_name), onAScreen (frame))) {
        object_error (owner, "couldnt create native window !");
        return;
    }

    window->show();
    component->setBounds (area);
    window->attach (component);
    component->setVisible (show);
    component->toFront (true);

    // Again, so that a heavyweight peer takes the size of the client area.
    takeOut();
    component->setSize (area.getWidth(), area.getHeight());
    window->attach (component);
    component->setBounds (area);
    component->setVisible (show);

    // Taking the component out removed the focus: keys must work at once, without a click.
    if (component->isShowing())
        component->grabKeyboardFocus();
}

void MaxMspJuceWindowManager::takeOut()
{
    component->setVisible (false); // before its peer goes: an OpenGL context has its listener there
    window->attach (nullptr);
}

void MaxMspJuceWindowManager::hide()
{
    if (! window->isOccupied())
        return;
    window->hide();
    component->setVisible (false);
}
