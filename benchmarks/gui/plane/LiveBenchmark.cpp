#include "gui/plane/PlaneComponent.h"
#include "host/bench/window/PeerInput.h"
#include "host/desktop/OffscreenWindow.h"

#include <benchmark/benchmark.h>

#include <malloc.h>
#include <random>

using lumo::PlaneComponent;

// Cost of user interaction: real events on a plane in a window in memory, with each frame painted as a window system
// would request it.

namespace
{

constexpr int side = 350; // as on the scene page

class LivePlane
{
public:
    LivePlane (std::size_t sources, std::size_t speakers) : plane (sources, speakers, side), input (plane)
    {
        for (std::size_t i = 0; i < sources; ++i)
            plane.SetSourcePosition (i, Somewhere(), false);
        for (std::size_t i = 0; i < speakers; ++i)
            plane.SetSpeakerPosition (i, Somewhere(), false);
        plane.setSize (side, side);
        window.create ("plane", { 0, 0, side, side });
        window.attach (&plane);
        window.show();
        Paint();
    }
    ~LivePlane() { window.destroy(); }

    LivePlane (const LivePlane&) = delete;
    LivePlane& operator= (const LivePlane&) = delete;

    qel::Point3 Somewhere() { return { place (random), place (random), 0 }; }
    void Paint() { plane.getPeer()->performAnyPendingRepaintsNow(); }
    [[nodiscard]] juce::Point<float> Pixels (const qel::Point3& metres) const
    {
        return lumo::Plane::OnScreen (plane.GetSurface().viewTransform, metres);
    }

    PlaneComponent plane;
    desktop::OffscreenWindow window;
    bench::PeerInput input;

private:
    std::mt19937 random{ 1 };
    std::uniform_real_distribution<float> place{ -0.9f, 0.9f };
};

/** Drags what is at the position across the plane; paints each step. */
void Drag (benchmark::State& state, LivePlane& live, juce::Point<float> at)
{
    live.input.press (at);
    float angle = 0;
    for (auto _ : state) {
        angle += 0.02f;
        live.input.drag (at + juce::Point<float> (30 * std::sin (angle), 30 * std::cos (3 * angle)));
        live.Paint();
    }
    live.input.release (at);
}

void DragASource (benchmark::State& state)
{
    const auto count = static_cast<std::size_t> (state.range (0));
    LivePlane live (count, count);
    live.plane.SetSourcePosition (count - 1, { 0.2f, 0.3f, 0 }, false); // the last one is on top
    Drag (state, live, live.Pixels ({ 0.2f, 0.3f, 0 }));
    if (live.plane.IsSourceSelected (count - 1) ==
        (live.plane.GetSourcePosition (count - 1) == qel::Point3{ 0.2f, 0.3f, 0 }))
        state.SkipWithError ("the source was not dragged");
}
BENCHMARK (DragASource)->Arg (1)->Arg (6)->Arg (64)->Arg (256)->Unit (benchmark::kMicrosecond);

void DragASpeaker (benchmark::State& state)
{
    const auto count = static_cast<std::size_t> (state.range (0));
    LivePlane live (count, count);
    live.plane.SetSpeakersEditable (true, false);
    live.plane.SetSpeakerPosition (0, { 0.2f, 0.3f, 0 }, false); // the first one is hit before the others
    Drag (state, live, live.Pixels ({ 0.2f, 0.3f, 0 }));
    if (live.plane.GetSelectedSpeaker() != 0)
        state.SkipWithError ("the speaker was not dragged");
}
BENCHMARK (DragASpeaker)->Arg (6)->Arg (64)->Unit (benchmark::kMicrosecond);

void DragTheListener (benchmark::State& state)
{
    LivePlane live (6, 6);
    live.plane.SetSourcesEditable (false, false);
    live.plane.SetListenerEditable (true);
    live.plane.SetListenerPosition ({ 0.2f, 0.3f, 0 }, false);
    Drag (state, live, live.Pixels ({ 0.2f, 0.3f, 0 }));
    if (live.plane.GetListenerPosition() == qel::Point3{ 0.2f, 0.3f, 0 })
        state.SkipWithError ("the listener was not dragged");
}
BENCHMARK (DragTheListener)->Unit (benchmark::kMicrosecond);

/** Moves this many sources by messages between two frames. */
void MovesOfAFrame (benchmark::State& state)
{
    LivePlane live (64, 64);
    for (auto _ : state) {
        for (std::size_t i = 0; i < static_cast<std::size_t> (state.range (0)); ++i)
            live.plane.SetSourcePosition (i, live.Somewhere(), true);
        live.Paint();
    }
}
BENCHMARK (MovesOfAFrame)
    ->Arg (0)
    ->Arg (1)
    ->Arg (2)
    ->Arg (4)
    ->Arg (8)
    ->Arg (16)
    ->Arg (64)
    ->Unit (benchmark::kMicrosecond);

void LevelsOfAFrame (benchmark::State& state)
{
    LivePlane live (64, 64);
    live.plane.SetSourcesLevelsVisible (true);
    float level = -60;
    for (auto _ : state) {
        level = level > 5 ? -60 : level + 0.5f;
        for (std::size_t i = 0; i < static_cast<std::size_t> (state.range (0)); ++i)
            live.plane.SetSourceLevel (i, level);
        live.Paint();
    }
}
BENCHMARK (LevelsOfAFrame)->Arg (1)->Arg (64)->Unit (benchmark::kMicrosecond);

/** The whole frame, with only the caches that survive between frames. */
void WholeFrame (benchmark::State& state)
{
    const auto count = static_cast<std::size_t> (state.range (0));
    LivePlane live (count, count);
    for (auto _ : state) {
        live.plane.repaint();
        live.Paint();
    }
}
/** Without aperture fans, as in a new object. */
void WholeFrameWithoutFans (benchmark::State& state)
{
    const auto count = static_cast<std::size_t> (state.range (0));
    LivePlane live (count, count);
    live.plane.SetApertureVisible (false);
    for (auto _ : state) {
        live.plane.repaint();
        live.Paint();
    }
}
BENCHMARK (WholeFrameWithoutFans)->Arg (6)->Arg (64)->Unit (benchmark::kMicrosecond);

BENCHMARK (WholeFrame)->Arg (0)->Arg (6)->Arg (64)->Unit (benchmark::kMicrosecond);

/** The counter is the heap memory of one more plane that was never shown. */
void NewPlane (benchmark::State& state)
{
    const auto count = static_cast<std::size_t> (state.range (0));
    const auto first = std::make_unique<PlaneComponent> (count, count, 400);
    const auto before = mallinfo2().uordblks;
    const auto second = std::make_unique<PlaneComponent> (count, count, 400);
    state.counters["kB"] = static_cast<double> (mallinfo2().uordblks - before) / 1000;
    for (auto _ : state)
        benchmark::DoNotOptimize (std::make_unique<PlaneComponent> (count, count, 400));
}
BENCHMARK (NewPlane)->Arg (6)->Arg (64)->Arg (256)->Unit (benchmark::kMicrosecond);

}
