#include "gui/plane/PlaneComponent.h"
#include "gui/plane/Text.h"

#include <algorithm>

namespace lumo
{

using namespace Plane;

template <typename Change>
void PlaneComponent::ChangeArea (std::size_t index, Change&& change)
{
    if (index >= scene.areas.size())
        return;
    change (scene.areas[index]);
    MarkStaticLayerDirty();
    repaint();
}

void PlaneComponent::SetNumAreas (std::size_t number)
{
    scene.areas.resize (std::min (number, Scene::largestCount));
    MarkStaticLayerDirty();
    repaint();
}

void PlaneComponent::SetAreaPoints (std::size_t index, const qel::Point3Array& points)
{
    if (index >= scene.areas.size() || ! std::all_of (points.begin(), points.end(), qel::isFinite))
        return;
    ChangeArea (index, [&] (Area& area) { area.SetPoints (points, surface.viewTransform); });
    areaMonitor.ReportSources();
}

void PlaneComponent::SetAreaLabel (std::size_t index, const qel::String& label)
{
    ChangeArea (index, [&] (Area& area) { area.label = FromCore (label); });
}

void PlaneComponent::SetAreaColour (std::size_t index, juce::Colour colour)
{
    ChangeArea (index, [&] (Area& area) { area.colour = colour; });
}

void PlaneComponent::SetAreaVisible (std::size_t index, bool visible)
{
    ChangeArea (index, [&] (Area& area) { area.visible = visible; });
}

void PlaneComponent::ClearArea (std::size_t index) { SetAreaPoints (index, {}); }

void PlaneComponent::ClearAllAreas()
{
    for (std::size_t i = 0; i < scene.areas.size(); ++i)
        ClearArea (i);
}

void PlaneComponent::SetAreasVisible (bool visible) { SetOption (surface.options.areasVisible, visible); }

AreaMonitor::Reports PlaneComponent::AreaReports()
{
    return { [this] (const auto& holding) {
                Notify ([&] (PlaneListener& l) { l.ListenerAreasChanged (holding, *this); });
            },
             [this] (auto index, const auto& holding) {
                 Notify ([&] (PlaneListener& l) { l.SpeakerAreasChanged (index, holding, *this); });
             },
             [this] (auto index, const auto& holding) {
                 Notify ([&] (PlaneListener& l) { l.SourceAreasChanged (index, holding, *this); });
             } };
}

void PlaneComponent::SetAreasMonitoring (bool on)
{
    SetOption (surface.options.areasMonitoring, on);
    areaMonitor.ReportAll();
}

}
