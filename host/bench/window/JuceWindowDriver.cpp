#include "host/bench/window/JuceWindowDriver.h"

#include "host/bench/window/GuiPump.h"
#include "host/desktop/OffscreenDesktop.h"
#include "host/desktop/OffscreenWindow.h"

namespace bench
{

namespace
{

const char* const noWindow = "it has no window";
const char* const notOpen = "it is not on the screen";

std::unique_ptr<juce::ScopedJuceInitialiser_GUI> startJuce (JuceWindowDriver::Place place)
{
    if (place == JuceWindowDriver::Place::memory)
        desktop::offscreen::start();
    else
        orvanemax::startJuceInHost();
    return std::make_unique<juce::ScopedJuceInitialiser_GUI>();
}

std::unique_ptr<orvanemax::NativeWindow> makeWindowAt (JuceWindowDriver::Place place)
{
    if (place == JuceWindowDriver::Place::memory)
        return std::make_unique<desktop::OffscreenWindow>();
    return orvanemax::makePlatformWindow();
}

juce::ModifierKeys keysOf (const bench::PointerEvent& event)
{
    using Keys = juce::ModifierKeys;
    return (event.shift ? Keys::shiftModifier : 0) | (event.ctrl ? Keys::ctrlModifier : 0) |
           (event.alt ? Keys::altModifier : 0) | (event.right ? Keys::rightButtonModifier : 0);
}

juce::TabbedComponent* tabsIn (juce::Component& component)
{
    for (auto* child : component.getChildren()) {
        if (auto* tabs = dynamic_cast<juce::TabbedComponent*> (child))
            return tabs;
        if (auto* tabs = child != nullptr ? tabsIn (*child) : nullptr)
            return tabs;
    }
    return nullptr;
}

/** Creates pages that are otherwise created at the first paint. */
juce::TabbedComponent* pagesOf (juce::Component& component)
{
    if (auto* tabs = tabsIn (component))
        return tabs;
    component.createComponentSnapshot ({ 1, 1 });
    return tabsIn (component);
}

/** Includes everything on top of it in its window, menus too, if it is visible. JUCE cannot read back OpenGL content:
    in that case the component paints itself again, without OpenGL. */
juce::Image pictureOf (juce::Component& component)
{
    if (component.getCachedComponentImage() != nullptr)
        return component.createComponentSnapshot (component.getLocalBounds());
    auto& top = component.isShowing() ? *component.getTopLevelComponent() : component;
    return top.createComponentSnapshot (top.getLocalArea (&component, component.getLocalBounds()));
}

bool writePng (const juce::Image& picture, const juce::File& file)
{
    juce::MemoryOutputStream png;
    return juce::PNGImageFormat().writeImageToStream (picture, png) &&
           file.replaceWithData (png.getData(), png.getDataSize());
}

}

JuceWindowDriver::JuceWindowDriver (Place placeOfWindows)
    : place (placeOfWindows), juceRuns (startJuce (placeOfWindows))
{
    orvanemax::setNativeWindowFactory (
        [this] (const void* object, juce::Component* component) { return makeWindow (object, component); });
}

JuceWindowDriver::~JuceWindowDriver()
{
    orvanemax::setNativeWindowFactory ({});
    pumpGui();
}

void JuceWindowDriver::setSink (Sink sink) { tell = std::move (sink); }

bool JuceWindowDriver::pump() { return pumpGui(); }
std::vector<int> JuceWindowDriver::descriptors() const { return guiDescriptors(); }

std::string JuceWindowDriver::turnPage (void* object, int page)
{
    auto* const entry = find (object);
    if (entry == nullptr)
        return noWindow;
    auto* const tabs = pagesOf (*entry->component);
    if (tabs == nullptr || page < 0 || page >= tabs->getNumTabs())
        return "it has no page " + std::to_string (page);
    tabs->setCurrentTabIndex (page);
    return {};
}

std::string JuceWindowDriver::pointer (void* object, const bench::PointerEvent& event)
{
    auto* const entry = find (object);
    if (entry == nullptr)
        return noWindow;

    using Action = bench::PointerEvent::Action;
    auto& input = entry->input;
    const juce::Point<float> position (event.x, event.y);
    const auto keys = keysOf (event);
    const auto act = [&] {
        switch (event.action) {
        case Action::down:
            return input.press (position, keys);
        case Action::drag:
            return input.drag (position, keys);
        case Action::up:
            return input.release (position, keys);
        case Action::move:
            return input.move (position, keys);
        case Action::doubleClick:
            return input.doubleClick (position, keys);
        case Action::wheel:
            return input.wheel (position, event.wheelDelta, keys);
        }
        return false;
    };
    return act() ? "" : notOpen;
}

std::string JuceWindowDriver::key (void* object, const std::string& description)
{
    auto* const entry = find (object);
    if (entry == nullptr)
        return noWindow;
    const auto press = juce::KeyPress::createFromDescription (juce::String::fromUTF8 (description.c_str()));
    if (! press.isValid())
        return "there is no key " + description;
    return entry->input.key (press) ? "" : notOpen;
}

std::string JuceWindowDriver::writePicture (void* object, const std::string& file)
{
    auto* const entry = find (object);
    if (entry == nullptr)
        return noWindow;
    const auto path = juce::File::getCurrentWorkingDirectory().getChildFile (juce::String::fromUTF8 (file.c_str()));
    return writePng (pictureOf (*entry->component), path) ? "" : "cannot write " + file;
}

std::unique_ptr<orvanemax::NativeWindow> JuceWindowDriver::makeWindow (const void* object, juce::Component* component)
{
    entries.insert_or_assign (object, Entry{ component, PeerInput (*component) });
    return std::make_unique<WatchedWindow> (
        makeWindowAt (place),
        [this, object] (const std::string& what) {
            if (tell)
                tell (const_cast<void*> (object), what);
        },
        [this, object, component] {
            // The object's address may have been reused by now.
            if (const auto entry = entries.find (object);
                entry != entries.end() && entry->second.component == component)
                entries.erase (entry);
        });
}

JuceWindowDriver::Entry* JuceWindowDriver::find (void* object)
{
    const auto entry = entries.find (object);
    return entry == entries.end() ? nullptr : &entry->second;
}

}
