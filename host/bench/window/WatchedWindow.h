#pragma once

#include "max/window/NativeWindow.h"

#include <functional>
#include <string>

namespace bench
{

/** A window that reports its events in the bench's language and forwards all work to another one. */
class WatchedWindow : public orvanemax::NativeWindow
{
public:
    using Tell = std::function<void (const std::string& what)>;

    /** Calls onEnd on destruction. */
    WatchedWindow (std::unique_ptr<orvanemax::NativeWindow> window, Tell tell, std::function<void()> onEnd);
    ~WatchedWindow() override;

    bool create (const juce::String& title, juce::Rectangle<int> frame) override;
    void show() override;
    void hide() override;
    void destroy() override;
    void setTitle (const juce::String& title) override;
    void attach (juce::Component* component) override { window->attach (component); }
    [[nodiscard]] bool exists() const override { return window->exists(); }
    [[nodiscard]] bool isOccupied() const override { return window->isOccupied(); }

private:
    std::unique_ptr<orvanemax::NativeWindow> window;
    Tell tell;
    std::function<void()> onEnd;
    bool shown = false;
};

}
