#pragma once
#include <functional>
#include <juce_gui_basics/juce_gui_basics.h>
#include <string>
#include <vector>

/** What a screen reader meets, walked as one does. */
namespace spoken
{

using Role = juce::AccessibilityRole;

/** The roles that a person operates or reads; "" for any other. */
inline const char* nameOf (Role role)
{
    switch (role) {
    case Role::slider:
        return "slider";
    case Role::toggleButton:
        return "switch";
    case Role::radioButton:
        return "tab";
    case Role::button:
        return "button";
    case Role::image:
        return "image";
    case Role::list:
        return "list";
    case Role::listItem:
        return "item";
    case Role::group:
        return "group";
    default:
        return "";
    }
}

/** Whether a person can change it, or read a value off it. */
inline bool isControl (Role role)
{
    return role == Role::slider || role == Role::toggleButton || role == Role::radioButton || role == Role::button ||
           role == Role::listItem;
}

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

/** What a person could not make out: "WHAT: role, name, ..." for each element that lacks something. */
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
