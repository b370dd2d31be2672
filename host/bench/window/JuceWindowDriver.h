#pragma once

#include "host/bench/WindowDriver.h"
#include "host/bench/window/PeerInput.h"
#include "host/bench/window/WatchedWindow.h"

#include <map>

namespace bench
{

/** The hands and eyes of the bench for windows that JUCE makes, on the display or in memory. It starts JUCE and ends
    it; between, every window of the product is made by it and tells the bench what happens to it. */
class JuceWindowDriver : public bench::WindowDriver
{
public:
    enum class Place
    {
        display,
        memory
    };

    explicit JuceWindowDriver (Place place);

    /** No object may be left. */
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
