#include "gui/plane/interaction/PlaneMenu.h"

namespace lumo
{

namespace
{

/** A switch toggled by an id. To add an item: a row at its position; a null text keeps it off the menu. */
struct Row
{
    int id; // 0 for a separator
    const char* text;
    bool PlaneOptions::*state;
    void (*set) (PlaneComponent&, bool);
};

constexpr Row separator{ 0, nullptr, nullptr, nullptr };

constexpr Row rows[] = {
    { 1, "speakers editable", &PlaneOptions::speakersEditable,
      [] (PlaneComponent& p, bool on) { p.SetSpeakersEditable (on, true); } },
    { 2, "sources editable", &PlaneOptions::sourcesEditable,
      [] (PlaneComponent& p, bool on) { p.SetSourcesEditable (on, true); } },
    { 3, "listener editable", &PlaneOptions::listenerEditable,
      [] (PlaneComponent& p, bool on) { p.SetListenerEditable (on); } },
    separator,
    { 4, "show speakers", &PlaneOptions::speakersVisible,
      [] (PlaneComponent& p, bool on) { p.SetSpeakersVisible (on); } },
    { 10, "show source aperture", &PlaneOptions::apertureVisible,
      [] (PlaneComponent& p, bool on) { p.SetApertureVisible (on); } },
    { 13, "show listener", &PlaneOptions::listenerVisible,
      [] (PlaneComponent& p, bool on) { p.SetListenerVisible (on); } },
    separator,
    // Does not repaint: the changed text appears with the next frame.
    { 6, "constrains to circular", &PlaneOptions::circularConstraint,
      [] (PlaneComponent& p, bool on) { p.SetCircularConstraint (on, false); } },
    separator,
    { 7, "Top View (xy)", &PlaneOptions::topView, [] (PlaneComponent& p, bool on) { p.SetTopView (on); } },
    { 8, "Front View (xz)", &PlaneOptions::frontView, [] (PlaneComponent& p, bool on) { p.SetFrontView (on); } },
    separator,
    // No longer on the menu, but still handled.
    { 9, nullptr, &PlaneOptions::headphonesVisible, [] (PlaneComponent& p, bool on) { p.SetHeadphonesVisible (on); } },
    { 11, nullptr, &PlaneOptions::backgroundImageVisible,
      [] (PlaneComponent& p, bool on) { p.SetBackgroundImageVisible (on); } },
    { 12, nullptr, &PlaneOptions::radiusVisible, [] (PlaneComponent& p, bool on) { p.SetRadiusVisible (on); } },
    { 14, nullptr, &PlaneOptions::shoeboxVisible, [] (PlaneComponent& p, bool on) { p.SetShoeboxVisible (on); } },
    { 15, nullptr, &PlaneOptions::hullVisible, [] (PlaneComponent& p, bool on) { p.SetHullVisible (on); } },
    { 16, nullptr, &PlaneOptions::angularDivisionsVisible,
      [] (PlaneComponent& p, bool on) { p.SetAngularDivisionsVisible (on); } },
    { 17, nullptr, &PlaneOptions::speakersRadiusVisible,
      [] (PlaneComponent& p, bool on) { p.SetSpeakersRadiusVisible (on); } },
    { 18, nullptr, &PlaneOptions::speakersProjectionVisible,
      [] (PlaneComponent& p, bool on) { p.SetSpeakersProjectionVisible (on); } },
};

}

void PlaneComponent::MenuItemChosen (int id)
{
    PlaneOptions options;
    GetOptions (options);
    for (const auto& row : rows)
        if (row.id == id && row.set != nullptr)
            return row.set (*this, ! (options.*row.state));
}

juce::PopupMenu Plane::MakePlaneMenu (PlaneComponent& plane)
{
    PlaneOptions options;
    plane.GetOptions (options);
    juce::PopupMenu menu;
    menu.setLookAndFeel (&plane.getLookAndFeel());
    for (const auto& row : rows) {
        if (row.id == 0)
            menu.addSeparator();
        else if (row.text != nullptr)
            menu.addItem (row.id, row.text, true, options.*row.state);
    }
    return menu;
}

void Plane::ShowPlaneMenu (PlaneComponent& plane)
{
    MakePlaneMenu (plane).showMenuAsync (juce::PopupMenu::Options().withTargetComponent (plane).withMousePosition(),
                                         [target = juce::Component::SafePointer (&plane)] (int id) {
                                             if (target != nullptr)
                                                 target->MenuItemChosen (id);
                                         });
}

}
