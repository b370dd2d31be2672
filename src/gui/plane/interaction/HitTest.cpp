#include "gui/plane/interaction/HitTest.h"

namespace lumo::Plane
{

namespace
{

bool IsNear (juce::Point<float> pixels, juce::Point<float> object, const ViewTransform& view, float proportion)
{
    return pixels.getDistanceFrom (object) < static_cast<float> (view.PixelSize (proportion));
}

}

bool IsClickable (const Source& source) { return source.visible && source.Editable(); }

bool IsClickable (const Speaker& speaker, const Surface& surface)
{
    return surface.options.speakersVisible && speaker.visible && speaker.editable;
}

int SourceUnder (juce::Point<float> pixels, const Surface& surface, const Scene& scene)
{
    for (auto i = scene.sources.size(); i-- > 0;) {
        const auto& source = scene.sources[i];
        if (IsClickable (source) && IsNear (pixels, source.screenPosition, surface.viewTransform, source.Proportion()))
            return static_cast<int> (i);
    }
    return Scene::none;
}

int SpeakerUnder (juce::Point<float> pixels, const Surface& surface, const Scene& scene)
{
    for (std::size_t i = 0; i < scene.speakers.size(); ++i) {
        const auto& speaker = scene.speakers[i];
        if (IsClickable (speaker, surface) &&
            IsNear (pixels, speaker.screenPosition, surface.viewTransform, speaker.proportion))
            return static_cast<int> (i);
    }
    return Scene::none;
}

bool IsListenerUnder (juce::Point<float> pixels, const Surface& surface)
{
    const auto& listener = surface.listener;
    return listener.editable && listener.visible &&
           IsNear (pixels, listener.screenPosition, surface.viewTransform, listener.proportion);
}

}
