#pragma once
#include "gui/plane/objects/Scene.h"
#include "gui/plane/surface/Surface.h"

namespace lumo::Plane
{

/** Hit testing. An object is hit within its icon's size from its centre, twice as wide as it is drawn. Only visible and
    editable objects can be hit. */

[[nodiscard]] bool IsClickable (const Source& source);
[[nodiscard]] bool IsClickable (const Speaker& speaker, const Surface& surface);

/** Of the sources hit, the one drawn last; or Scene::none. */
[[nodiscard]] int SourceUnder (juce::Point<float> pixels, const Surface& surface, const Scene& scene);
/** Of the speakers hit, the first; or Scene::none. */
[[nodiscard]] int SpeakerUnder (juce::Point<float> pixels, const Surface& surface, const Scene& scene);
[[nodiscard]] bool IsListenerUnder (juce::Point<float> pixels, const Surface& surface);

}
