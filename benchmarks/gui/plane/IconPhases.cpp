#include "gui/plane/icons/IconStore.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <random>

using namespace lumo::Plane;

namespace
{

constexpr int field = 80;

juce::Image Drawn (const juce::Drawable& icon, juce::Point<float> at, float side)
{
    juce::Image image (juce::Image::RGB, field, field, false, juce::SoftwareImageType());
    juce::Graphics g (image);
    g.fillAll (juce::Colour (0xFFB5B5B5));
    icon.drawWithin (g, juce::Rectangle<float> (side, side) + at, juce::RectanglePlacement::centred, 1.0f);
    return image;
}

/** The largest difference of any channel, 0 to 255. */
int Levels (juce::Colour a, juce::Colour b)
{
    return std::max ({ std::abs (a.getRed() - b.getRed()), std::abs (a.getGreen() - b.getGreen()),
                       std::abs (a.getBlue() - b.getBlue()) });
}

/** Error from drawing icons at the nearest of several subpixel positions, compared with vector drawing anywhere.
    Counters: the worst pixel, the mean over differing pixels, and the bitmap memory of one icon of 25 pixels in kB.
    Time does not matter here. */
void IconPhases (benchmark::State& state)
{
    const auto phases = static_cast<float> (state.range (0));
    const Icon icons[] = { { Icon::Kind::source, juce::Colour (0xFF7DFF00) },
                           { Icon::Kind::fixedSource, juce::Colours::red },
                           { Icon::Kind::speaker, juce::Colours::black },
                           { Icon::Kind::speaker, juce::Colours::white } };
    std::mt19937 random (1);
    std::uniform_real_distribution<float> place (1, 3);
    int worst = 0;
    double sum = 0, differing = 0;
    IconStore store;
    for (auto _ : state)
        for (const auto& icon : icons)
            for (const float side : { 12.0f, 25.0f, 35.0f, 70.0f }) {
                const juce::Point<float> at (place (random), place (random));
                const juce::Point<float> near (std::round (at.x * phases) / phases,
                                               std::round (at.y * phases) / phases);
                const auto exact = Drawn (store.DrawableOf (icon), at, side);
                const auto moved = Drawn (store.DrawableOf (icon), near, side);
                for (int y = 0; y < field; ++y)
                    for (int x = 0; x < field; ++x)
                        if (const int levels = Levels (exact.getPixelAt (x, y), moved.getPixelAt (x, y)); levels > 0) {
                            worst = std::max (worst, levels);
                            sum += levels;
                            ++differing;
                        }
            }
    state.counters["worst"] = worst;
    state.counters["mean"] = sum / std::max (1.0, differing);
    state.counters["kB"] = static_cast<double> (phases * phases) * 27 * 27 * 4 / 1000;
}
BENCHMARK (IconPhases)->RangeMultiplier (2)->Range (1, 64)->Iterations (40)->Unit (benchmark::kMillisecond);

}
