#pragma once
#include "gui/plane/objects/Scene.h"
#include "gui/plane/surface/Surface.h"

namespace lumo::Plane
{

/** What lies under the pointer. An object is hit nearer than its icon's size: twice as wide as it is drawn.
    Only what is visible and editable can be hit. */

[[nodiscard]] bool IsClickable (const Source& source);
[[nodiscard]] bool IsClickable (const Speaker& speaker, const Surface& surface);

/** The source drawn last of those hit, or Scene::none. */
[[nodiscard]] int SourceUnder (juce::Point<float> pixels, const Surface& surface, const Scene& scene);
/** The first speaker of those hit, or Scene::none. */
[[nodiscard]] int SpeakerUnder (juce::Point<float> pixels, const Surface& surface, const Scene& scene);
[[nodiscard]] bool IsListenerUnder (juce::Point<float> pixels, const Surface& surface);

}
