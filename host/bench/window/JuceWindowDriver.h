#pragma once

#include "host/bench/WindowDriver.h"
#include "host/bench/window/PeerInput.h"
#include "host/bench/window/WatchedWindow.h"

#include <map>

namespace bench
{

/** The bench's window driver for JUCE windows, on the display or in memory. Initialises JUCE and shuts it down;
    meanwhile it creates every window of the product and reports its events to the bench. */
class JuceWindowDriver : public bench::WindowDriver
{
public:
    enum class Place
    {
        display,
        memory
    };

    explicit JuceWindowDriver (Place place);

    /** All objects must have been freed. */
    ~JuceWindowDriver() override;

    void setSink (Sink sink) override;
    bool pump() override;
    [[nodiscard]] std::vector<int> descriptors() const override;
    [[nodiscard]] bool isOnDisplay() const override { return place == Place::display; }
    std::string turnPage (void* object, int page) override;
    std::string pointer (void* object, const bench::PointerEvent& event) override;
    std::string key (void* object, const std::string& description) override;
    std::string writePicture (void* object, const std::string& file) override;

private:
    struct Entry
    {
        juce::Component* component = nullptr;
        PeerInput input;
    };

    std::unique_ptr<orvanemax::NativeWindow> makeWindow (const void* object, juce::Component* component);
    Entry* find (void* object);

    const Place place;
    const std::unique_ptr<juce::ScopedJuceInitialiser_GUI> juceRuns;
    Sink tell;
    std::map<const void*, Entry> entries;
};

}
