#include "gui/verb/HalcyraFiltersTabComponent.h"
#include "gui/verb/HalcyraTimeStructureTabComponent.h"
#include "host/desktop/OffscreenDesktop.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <utility>
#include <vector>

// Cost of a frame of each picture relative to the least possible: "ratio" is the frame over its floor, measured in
// alternation.

namespace
{

double seconds() { return std::chrono::duration<double> (std::chrono::steady_clock::now().time_since_epoch()).count(); }

double median (std::vector<double>& times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t> (times.size() / 2);
    std::nth_element (times.begin(), middle, times.end());
    return *middle;
}

template <typename Work, typename Floor>
void compare (benchmark::State& state, Work&& work, Floor&& floor)
{
    std::vector<double> workTimes, floorTimes;
    for ([[maybe_unused]] const auto turn : state) {
        const double start = seconds();
        floor();
        const double middle = seconds();
        work();
        const double end = seconds();
        floorTimes.push_back (middle - start);
        workTimes.push_back (end - middle);
        state.SetIterationTime (end - middle);
    }
    state.counters["ratio"] = median (workTimes) / median (floorTimes);
}

/** Draws a component into an image of its size. */
struct Canvas
{
    explicit Canvas (juce::Component& content) : image (juce::Image::RGB, content.getWidth(), content.getHeight(), true)
    {
        parent.setLookAndFeel (look);
        parent.setSize (content.getWidth(), content.getHeight());
        parent.setVisible (true);
        parent.addAndMakeVisible (content);
    }
    ~Canvas() { parent.setLookAndFeel (nullptr); }

    void draw()
    {
        juce::Graphics g (image);
        parent.paintEntireComponent (g, true);
    }

    juce::SharedResourcePointer<Ambrel4LookAndFeelV2> look;
    juce::Component parent;
    juce::Image image;
};

/** A band's decay at its default, on a picture of 904 by 144. Ends at the right edge: the part far beyond it is the
    renderer's slowest case. */
juce::Path decayOf (float ratio, float control)
{
    const halcyra::ImpulseResponseScale scale{ 904, 144 };
    const float x = scale.x (95.37f), width = scale.x (2000 * ratio);
    juce::Path path;
    path.startNewSubPath (x, 144);
    float right = x;
    for (int i = 0; i <= 64 && right < 904; ++i) {
        const float t = static_cast<float> (i) / 64;
        right = x + (2 * t * (1 - t) * control + t * t) * width;
        path.lineTo (right, 72 + 72 * (2 * t * (1 - t) * 47.0f / 49 + t * t));
    }
    path.lineTo (right, 144);
    path.closeSubPath();
    return path;
}

/** One step of the decay's slider. The floor draws the same amount with the same renderer, precomputed: the background,
    each band once in an opaque colour, the axis lines and texts, and one line per tap. */
void impulseResponseFrame (benchmark::State& state)
{
    const auto taps = static_cast<std::uint32_t> (state.range (0));
    lumo::ImpulseResponseComponent display (taps);
    display.setSize (904, 144);
    Canvas canvas (display);

    Ambrel::Delgen early (taps, 20, 40, 0.5f), cluster (taps, 20, 40, 0.5f);
    early.setMinMax (22.22f, 39.71f, 0.5f);
    cluster.setMinMax (42.47f, 105.64f, 0.5f);
    const halcyra::ImpulseResponseScale scale{ 904, 144 };
    std::vector<juce::Rectangle<float>> axis, lines;
    juce::GlyphArrangement texts;
    for (int ms = 20; ms < 400; ms += 20) {
        const float x = scale.x (static_cast<float> (ms));
        axis.push_back ({ x - 0.5f, 0, 1, 144 });
        texts.addLineOfText (juce::Font (12), juce::String (ms), x, 12);
    }
    for (const float ms : early.getDelays()) {
        lines.push_back ({ scale.x (ms) - 0.5f, 72, 1, 72 });
        for (const float offset : cluster.getDelays())
            lines.push_back ({ scale.x (ms + offset) - 0.5f, 72, 1, 72 });
    }
    const std::pair<juce::Path, juce::Colour> bands[] = {
        { decayOf (1, 0.35f), juce::Colour (0xFFDA5B5B) },
        { decayOf (0.9f, 0.31f), juce::Colour (0xFFC4AD2D) },
        { decayOf (0.5f, 0.44f), juce::Colour (0xFF628296) },
    };
    float seconds = 2;
    const auto frame = [&] {
        display.setTr0 (seconds = seconds > 2 ? 2.0f : 2.1f);
        canvas.draw();
    };
    const auto floor = [&] {
        juce::Graphics g (canvas.image);
        g.fillAll (juce::Colour (0xFFB5B5B5));
        for (const auto& [path, colour] : bands) {
            g.setColour (colour);
            g.fillPath (path);
        }
        g.setColour (juce::Colours::grey.withAlpha (0.2f));
        for (const auto& line : axis)
            g.fillRect (line);
        texts.draw (g);
        g.setColour (juce::Colours::blue.withAlpha (0.5f));
        for (const auto& line : lines)
            g.fillRect (line);
    };
    compare (state, frame, floor);
}

void responseCurveFrame (benchmark::State& state)
{
    lumo::HLShelfFrequencyResponseComponent curve ("curve");
    curve.setSize (192, 150);
    const HLShelfParameters filter{ -2, 12, -12, 6, 300, 3000 };
    curve.setParameters (filter, false, false);
    Canvas canvas (curve);

    HLShelfResponse response;
    response.design (filter);
    const halcyra::HLShelfScale scale{ 192, 150 };
    juce::Path path;
    path.startNewSubPath (0, static_cast<float> (scale.y (response.decibelsAt (20))));
    for (int x = 3; x <= 192; x += 3)
        path.lineTo (static_cast<float> (x), static_cast<float> (scale.y (response.decibelsAt (scale.frequency (x)))));
    juce::Path area = path;
    area.lineTo (192, 150);
    area.lineTo (0, 150);
    area.closeSubPath();
    compare (
        state, [&] { canvas.draw(); },
        [&] {
            juce::Graphics g (canvas.image);
            g.setColour (juce::Colour (0x9E2A9DA5));
            g.strokePath (path, { 2, juce::PathStrokeType::curved, juce::PathStrokeType::rounded });
            g.fillPath (area);
        });
}

/** A whole page, as when its window is uncovered or its tab is selected, relative to a copy of its pixels. An edit
    draws only what it changes, which `benchmarks/run` measures. */
void pageFrame (benchmark::State& state, juce::Component& page)
{
    page.setSize (918, 399);
    Canvas canvas (page);
    juce::HeapBlock<char> from (918 * 399 * 4, true), to (918 * 399 * 4, true);
    compare (
        state, [&] { canvas.draw(); },
        [&] {
            std::memcpy (to.get(), from.get(), 918 * 399 * 4);
            benchmark::DoNotOptimize (to.get());
            benchmark::ClobberMemory();
        });
}

void timeStructurePageFrame (benchmark::State& state)
{
    HalcyraTimeStructureTabComponent page ("page", 16);
    pageFrame (state, page);
}

void filtersPageFrame (benchmark::State& state)
{
    halcyra::ReverbModel model (8);
    HalcyraFiltersTabComponent page ("page", model);
    pageFrame (state, page);
}

/** Sets a control that is not visible. */
void hiddenSetting (benchmark::State& state)
{
    HalcyraTimeStructureTabComponent page ("page", 16);
    float value = 0;
    for ([[maybe_unused]] const auto turn : state)
        page.setParameter (halcyra::parameter::gain, value = 1 - value, 0);
}

BENCHMARK (impulseResponseFrame)->Arg (8)->Arg (16)->Arg (64)->UseManualTime()->Unit (benchmark::kMicrosecond);
BENCHMARK (responseCurveFrame)->UseManualTime()->Unit (benchmark::kMicrosecond);
BENCHMARK (timeStructurePageFrame)->UseManualTime()->Unit (benchmark::kMicrosecond);
BENCHMARK (filtersPageFrame)->UseManualTime()->Unit (benchmark::kMicrosecond);
BENCHMARK (hiddenSetting);

}

int main (int argc, char** argv)
{
    desktop::offscreen::start();
    const juce::ScopedJuceInitialiser_GUI juceEndsWithMain;
    benchmark::Initialize (&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
