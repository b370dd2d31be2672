#pragma once
#include <functional>
#include <juce_gui_basics/juce_gui_basics.h>
#include <string>
#include <vector>

/** The accessibility tree, traversed as a screen reader does. */
namespace spoken
{

using Role = juce::AccessibilityRole;

/** The roles that users encounter, and which of them can be edited or have a value. */
struct RoleRow
{
    Role role;
    const char* name;
    bool isControl;
};

constexpr RoleRow roles[] = {
    { Role::slider, "slider", true }, { Role::toggleButton, "switch", true }, { Role::radioButton, "tab", true },
    { Role::button, "button", true }, { Role::listItem, "item", true },       { Role::image, "image", false },
    { Role::list, "list", false },    { Role::group, "group", false },
};

/** A row without a name for any other role. */
constexpr RoleRow rowOf (Role role)
{
    for (const auto& row : roles)
        if (row.role == role)
            return row;
    return { role, "", false };
}

constexpr const char* nameOf (Role role) { return rowOf (role).name; }
constexpr bool isControl (Role role) { return rowOf (role).isControl; }

inline juce::String valueOf (const juce::AccessibilityHandler& handler)
{
    if (const auto* value = handler.getValueInterface())
        return value->getCurrentValueAsString();
    const auto state = handler.getCurrentState();
    return ! state.isCheckable() ? juce::String() : state.isChecked() ? "on" : "off";
}

using Visit = std::function<void (juce::AccessibilityHandler&)>;
inline void walk (juce::AccessibilityHandler& from, const Visit& visit)
{
    visit (from);
    for (auto* child : from.getChildren())
        walk (*child, visit);
}

/** Gaps for screen reader users: "WHAT: role, name, ..." for each element that lacks something. */
inline std::vector<std::string> gapsBelow (juce::AccessibilityHandler& root)
{
    std::vector<std::string> gaps;
    walk (root, [&] (juce::AccessibilityHandler& handler) {
        const auto role = handler.getRole();
        std::string gap;
        if (*nameOf (role) == 0)
            gap += " role";
        if (handler.getTitle().isEmpty())
            gap += " name";
        if (isControl (role) && role != Role::button && valueOf (handler).isEmpty())
            gap += " value";
        if (role == Role::button && ! handler.getActions().contains (juce::AccessibilityActionType::press))
            gap += " press";
        if (handler.getComponent().getScreenBounds().isEmpty())
            gap += " place";
        if (! gap.empty())
            gaps.push_back ((nameOf (role) + (" " + handler.getComponent().getName() + ":")).toStdString() + gap);
    });
    return gaps;
}

}
