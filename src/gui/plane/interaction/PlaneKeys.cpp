#include "gui/plane/interaction/PlaneKeys.h"

#include "gui/plane/interaction/PlaneMenu.h"

#include <array>
#include <cmath>
#include <utility>

namespace lumo
{

namespace
{

constexpr float octavesPerKey = 0.15f;

template <int number>
void Command (PlaneComponent& plane)
{
    plane.SendKeyCommand (number);
}

template <int direction>
void Zoom (PlaneComponent& plane)
{
    plane.SetZoom (plane.GetSurface().viewTransform.zoom * std::exp2 (octavesPerKey * direction), true);
}

/** Scrolls right and up. The step depends on the width in both directions. */
template <int right, int up>
void Shift (PlaneComponent& plane)
{
    const float step = static_cast<float> (plane.getWidth()) / 10.0f;
    plane.ShiftView (right * step, up * step);
}

void ZoomToOne (PlaneComponent& plane) { plane.SetZoom (1.0f, true); }
void OtherView (PlaneComponent& plane) { plane.SetTopView (! plane.GetSurface().viewTransform.topView); }
void NextGrid (PlaneComponent& plane)
{
    plane.SetGridMode ((plane.GetSurface().grid.mode + 1) % Plane::Grid::numModes);
}
void SelectAll (PlaneComponent& plane) { plane.SelectAllSources(); }
void SelectNext (PlaneComponent& plane) { plane.SelectNextSource(); }

void NextSpeaker (PlaneComponent& plane) { plane.SelectNextSpeaker(); }
void SelectListener (PlaneComponent& plane) { plane.SelectListenerAlone(); }
void OpenMenu (PlaneComponent& plane)
{
    if (! plane.GetSurface().options.rightClickLocked)
        Plane::ShowPlaneMenu (plane);
}

/** Moves the selection in tenths of a metre: right, up, and along the axis hidden by the view. */
template <int right, int up, int hidden>
void Move (PlaneComponent& plane)
{
    const auto metres = [] (int tenths) { return static_cast<float> (tenths) / 10.0f; };
    qel::Point3 step{ metres (right), metres (up), metres (hidden) };
    if (! plane.GetSurface().viewTransform.topView)
        std::swap (step.y, step.z);
    plane.MoveSelection (step);
}

template <int menuId>
void Toggle (PlaneComponent& plane)
{
    plane.MenuItemChosen (menuId);
}

void ToggleCircular (PlaneComponent& plane)
{
    plane.SetCircularConstraint (! plane.GetSurface().options.circularConstraint);
}

struct Row
{
    int keyCode;
    int modifiers;
    void (*press) (PlaneComponent&);
};

/** The first matching row applies. To add a key: one row.

    Keys are compared by code, without a text character. Keyboards differ in the position of "+": if it is a key of its
    own (German, without shift) both platforms report its code. On a US keyboard it is shift and "=": X11 reports "+"
    with shift, which zooms in; Windows reports "=" with shift, which has no row, so only the numeric keypad works
    there. */
const auto& Rows()
{
    using juce::KeyPress;
    constexpr int plain = juce::ModifierKeys::noModifiers;
    constexpr int ctrl = juce::ModifierKeys::ctrlModifier;
    constexpr int shift = juce::ModifierKeys::shiftModifier;
    constexpr int alt = juce::ModifierKeys::altModifier;
    constexpr int softHyphen = 0xAD; // JUCE's code for the numeric keypad's minus on X11
    static const std::array rows{
        Row{ 'w', ctrl, Command<0> }, // requests that the window close
        Row{ KeyPress::numberPadAdd, ctrl, Command<2> },
        Row{ '+', ctrl, Command<2> },
        Row{ ',', ctrl, Command<2> },
        Row{ KeyPress::numberPadSubtract, ctrl, Command<3> },
        Row{ softHyphen, ctrl, Command<3> },
        Row{ '-', ctrl, Command<3> },
        Row{ KeyPress::numberPadAdd, plain, Zoom<1> },
        Row{ '+', plain, Zoom<1> },
        Row{ '+', shift, Zoom<1> },
        Row{ KeyPress::numberPadSubtract, plain, Zoom<-1> },
        Row{ softHyphen, plain, Zoom<-1> },
        Row{ '-', plain, Zoom<-1> },
        Row{ KeyPress::numberPadEquals, plain, ZoomToOne },
        Row{ '=', plain, ZoomToOne },
        Row{ 'a', plain, Toggle<10> }, // apertures
        Row{ 's', plain, Toggle<4> },  // speakers
        Row{ 'l', plain, Toggle<13> }, // listener
        Row{ 'c', plain, ToggleCircular },
        Row{ 'v', plain, OtherView },
        Row{ 'm', plain, Command<13> },
        Row{ 'a', ctrl, SelectAll },
        Row{ 'g', plain, NextGrid },
        Row{ KeyPress::rightKey, plain, Shift<-1, 0> },
        Row{ KeyPress::leftKey, plain, Shift<1, 0> },
        Row{ KeyPress::upKey, plain, Shift<0, -1> },
        Row{ KeyPress::downKey, plain, Shift<0, 1> },
        Row{ KeyPress::tabKey, plain, SelectNext },
        Row{ KeyPress::homeKey, alt, NextSpeaker },
        Row{ KeyPress::endKey, alt, SelectListener },
        Row{ KeyPress::rightKey, alt, Move<1, 0, 0> },
        Row{ KeyPress::leftKey, alt, Move<-1, 0, 0> },
        Row{ KeyPress::upKey, alt, Move<0, 1, 0> },
        Row{ KeyPress::downKey, alt, Move<0, -1, 0> },
        Row{ KeyPress::pageUpKey, alt, Move<0, 0, 1> },
        Row{ KeyPress::pageDownKey, alt, Move<0, 0, -1> },
        Row{ KeyPress::rightKey, alt | shift, Move<10, 0, 0> },
        Row{ KeyPress::leftKey, alt | shift, Move<-10, 0, 0> },
        Row{ KeyPress::upKey, alt | shift, Move<0, 10, 0> },
        Row{ KeyPress::downKey, alt | shift, Move<0, -10, 0> },
        Row{ KeyPress::pageUpKey, alt | shift, Move<0, 0, 10> },
        Row{ KeyPress::pageDownKey, alt | shift, Move<0, 0, -10> },
        Row{ KeyPress::F10Key, shift, OpenMenu },
    };
    return rows;
}

}

bool Plane::PressKey (PlaneComponent& plane, const juce::KeyPress& key)
{
    for (const auto& row : Rows())
        if (key == juce::KeyPress (row.keyCode, juce::ModifierKeys (row.modifiers), 0)) {
            row.press (plane);
            return true;
        }
    return false;
}

bool PlaneComponent::keyPressed (const juce::KeyPress& key)
{
    juce::PopupMenu::dismissAllActiveMenus();
    const bool taken = PlaneBase::keyPressed (key) || Plane::PressKey (*this, key);
    SpeakSelection();
    return taken;
}

void PlaneComponent::SendKeyCommand (int number)
{
    Notify ([&] (PlaneListener& l) { l.KeyCommand (number, *this); });
}

}
