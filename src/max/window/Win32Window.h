#pragma once

#include "max/window/NativeWindow.h"

namespace orvanemax
{

/** A native Windows window: a plain dialog frame with the component as a child window.
    The component keeps its size whatever the user does to the frame. */
class Win32Window : public NativeWindow
{
public:
    ~Win32Window() override;

    bool create (const juce::String& title, juce::Rectangle<int> frame) override;
    void show() override;
    void hide() override;
    void destroy() override;
    void setTitle (const juce::String& title) override;
    void attach (juce::Component* component) override;
    [[nodiscard]] bool exists() const override { return handle != nullptr; }
    [[nodiscard]] bool isOccupied() const override;

private:
    /** The frame's HWND; null if there is none. */
    void* handle = nullptr;
    juce::Component::SafePointer<juce::Component> content;
};

}
