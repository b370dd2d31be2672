#include "CairoScene.h"
#include "host/desktop/OffscreenDesktop.h"

#include <benchmark/benchmark.h>

#include <random>

using lumo::PlaneComponent;

namespace
{

constexpr int side = 600;

/** A scene with objects spread over the component, and the frame to draw it into. */
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

/** One blit plus the same pictures with everything precomputed: icon bitmaps in place, stroked fans, laid-out labels.
    The minimum that must be drawn. */
void FloorOfAFrame (benchmark::State& state)
{
    Scene scene (64);
    const juce::Image blit = scene.frame.createCopy();
    const auto& view = scene.plane.GetSurface().viewTransform;
    const auto& sources = scene.plane.GetScene().sources;
    lumo::Plane::IconStore store;
    std::vector<juce::Path> fans, rims;
    std::vector<juce::GlyphArrangement> labels;
    std::vector<std::pair<juce::Image, juce::Point<int>>> icons;
    for (const auto& source : sources) {
        const auto at = source.screenPosition;
        const auto radius = static_cast<float> (view.PixelSize (source.ApertureProportion()));
        auto& fan = fans.emplace_back();
        fan.startNewSubPath (at);
        fan.addCentredArc (at.x, at.y, radius, radius, source.RelativeYaw(), source.aperture, -source.aperture);
        fan.closeSubPath();
        juce::PathStrokeType (2.0f).createStrokedPath (rims.emplace_back(), fan);
        labels.emplace_back().addFittedText (lumo::Component::MakeFont (20), source.label.Text(), at.x - 50, at.y - 50,
                                             100, 100, juce::Justification::centred, 1);
        const auto size = static_cast<float> (view.PixelSize (source.Proportion()));
        const auto square = juce::Rectangle<float> (size, size).withCentre (at);
        const auto corner = square.getPosition().toInt();
        juce::Image icon (juce::Image::ARGB, static_cast<int> (size) + 2, static_cast<int> (size) + 2, true,
                          juce::SoftwareImageType());
        juce::Graphics g (icon);
        store.DrawableOf (source.Icon())
            .drawWithin (g, square - corner.toFloat(), juce::RectanglePlacement::centred, 1.0f);
        icons.emplace_back (icon, corner);
    }
    for (auto _ : state) {
        juce::Graphics g (scene.frame);
        g.drawImageAt (blit, 0, 0);
        g.setColour (juce::Colour (0x9EFFFFFF));
        for (std::size_t i = 0; i < sources.size(); ++i) {
            g.fillPath (fans[i]);
            g.fillPath (rims[i]);
        }
        g.setColour (juce::Colours::black);
        for (std::size_t i = 0; i < sources.size(); ++i) {
            g.drawImageAt (icons[i].first, icons[i].second.x, icons[i].second.y);
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

/** With hull and triangulation on: the cost of dragging a source, and a speaker. */
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

}

int main (int argc, char** argv)
{
    desktop::offscreen::start();
    const juce::ScopedJuceInitialiser_GUI juce;
    benchmark::Initialize (&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
