#include "CairoScene.h"

#include <benchmark/benchmark.h>

#include <random>

using lumo::PlaneComponent;

namespace
{

constexpr int side = 600;

/** A scene with its objects strewn over the component, and the frame that it is drawn into. */
struct Scene
{
    explicit Scene (std::size_t sources, std::size_t speakers = 64) : plane (sources, speakers, side)
    {
        for (std::size_t i = 0; i < sources; ++i)
            plane.SetSourcePosition (i, Somewhere(), false);
        for (std::size_t i = 0; i < speakers; ++i)
            plane.SetSpeakerPosition (i, Somewhere(), false);
        DrawFrame();
    }

    qel::Point3 Somewhere() { return { place (random), place (random), 0 }; }
    void DrawFrame()
    {
        juce::Graphics g (frame);
        plane.paint (g);
    }

    std::mt19937 random{ 1 };
    std::uniform_real_distribution<float> place{ -1, 1 };
    PlaneComponent plane;
    juce::Image frame{ juce::Image::RGB, side, side, true, juce::SoftwareImageType() };
};

void DragOneSource (benchmark::State& state, Scene& scene)
{
    float x = 0;
    for (auto _ : state) {
        scene.plane.SetSourcePosition (0, { x = x > 1 ? -1 : x + 0.01f, 0, 0 }, true);
        scene.DrawFrame();
    }
}

void FrameWithCleanCache (benchmark::State& state)
{
    Scene scene (static_cast<std::size_t> (state.range (0)));
    DragOneSource (state, scene);
}
BENCHMARK (FrameWithCleanCache)->Arg (0)->Arg (64)->Arg (256)->Unit (benchmark::kMicrosecond);

void FrameWithoutCache (benchmark::State& state)
{
    Scene scene (64);
    scene.plane.SetBackgroundColour (scene.plane.GetSurface().background.colour.withAlpha (0.98f));
    DragOneSource (state, scene);
}
BENCHMARK (FrameWithoutCache)->Unit (benchmark::kMicrosecond);

/** One blit, and the same drawables with everything about them made beforehand: less cannot be drawn. */
void FloorOfAFrame (benchmark::State& state)
{
    Scene scene (64);
    const juce::Image blit = scene.frame.createCopy();
    const auto& view = scene.plane.GetSurface().viewTransform;
    const auto& sources = scene.plane.GetScene().sources;
    std::vector<juce::Path> fans;
    std::vector<juce::GlyphArrangement> labels;
    for (const auto& source : sources) {
        const auto at = source.screenPosition;
        const auto radius = static_cast<float> (view.PixelSize (source.ApertureProportion()));
        auto& fan = fans.emplace_back();
        fan.startNewSubPath (at);
        fan.addCentredArc (at.x, at.y, radius, radius, source.RelativeYaw(), source.aperture, -source.aperture);
        fan.closeSubPath();
        labels.emplace_back().addFittedText (lumo::Component::MakeFont (20), source.label, at.x - 50, at.y - 50, 100,
                                             100, juce::Justification::centred, 1);
    }
    for (auto _ : state) {
        juce::Graphics g (scene.frame);
        g.drawImageAt (blit, 0, 0);
        g.setColour (juce::Colour (0x9EFFFFFF));
        for (const auto& fan : fans) {
            g.fillPath (fan);
            g.strokePath (fan, juce::PathStrokeType (2.0f));
        }
        for (std::size_t i = 0; i < sources.size(); ++i) {
            const auto size = static_cast<float> (view.PixelSize (sources[i].Proportion()));
            sources[i].Icon().drawWithin (g, juce::Rectangle<float> (size, size).withCentre (sources[i].screenPosition),
                                          juce::RectanglePlacement::centred, 1.0f);
            g.setColour (juce::Colours::black);
            labels[i].draw (g);
        }
    }
}
BENCHMARK (FloorOfAFrame)->Unit (benchmark::kMicrosecond);

void FrameByCairo (benchmark::State& state)
{
    Scene scene (64);
    CairoScene cairo (side);
    for (auto _ : state)
        cairo.DrawFrame (scene.plane);
}
BENCHMARK (FrameByCairo)->Unit (benchmark::kMicrosecond);

struct Counter : lumo::PlaneListener
{
    void SourcePositionChanged (std::size_t, const qel::Point3&) override { ++told; }
    int told = 0;
};

/** From the pointer event to the listener that sends the message on. */
void DragStep (benchmark::State& state)
{
    Scene scene (static_cast<std::size_t> (state.range (0)), 8);
    Counter counter;
    scene.plane.AddListener (&counter);
    scene.plane.SetSourceSelected (0, true, false);
    juce::Point<float> at (300, 300);
    for (auto _ : state) {
        at.x = at.x > 500 ? 100 : at.x + 1;
        scene.plane.mouseDrag ({ juce::Desktop::getInstance().getMainMouseSource(),
                                 at,
                                 juce::ModifierKeys::leftButtonModifier,
                                 0,
                                 0,
                                 0,
                                 0,
                                 0,
                                 &scene.plane,
                                 &scene.plane,
                                 {},
                                 at,
                                 {},
                                 1,
                                 true });
    }
    scene.plane.RemoveListener (&counter);
    if (counter.told != state.iterations())
        state.SkipWithError ("a drag step was not told");
}
BENCHMARK (DragStep)->Arg (1)->Arg (64)->Arg (256);

/** Hull and triangulation on: what a source's drag costs, and a speaker's. */
void DragWithHullAndTriangulation (benchmark::State& state)
{
    Scene scene (64);
    scene.plane.SetHullVisible (true);
    scene.plane.SetTriangulationVisible (true);
    const bool speakerMoves = state.range (0) != 0;
    float x = 0;
    for (auto _ : state) {
        x = x > 1 ? -1 : x + 0.01f;
        if (speakerMoves)
            scene.plane.SetSpeakerPosition (0, { x, 0.5f, 0 }, true);
        else
            scene.plane.SetSourcePosition (0, { x, 0.5f, 0 }, true);
        scene.DrawFrame();
    }
    state.SetLabel (speakerMoves ? "a speaker" : "a source");
}
BENCHMARK (DragWithHullAndTriangulation)->Arg (0)->Arg (1)->Unit (benchmark::kMicrosecond);

void NewPlane (benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize (
            std::make_unique<PlaneComponent> (static_cast<std::size_t> (state.range (0)), 64, 350));
}
BENCHMARK (NewPlane)->Arg (6)->Arg (256)->Unit (benchmark::kMillisecond);

}

int main (int argc, char** argv)
{
    const juce::ScopedJuceInitialiser_GUI juce;
    benchmark::Initialize (&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
