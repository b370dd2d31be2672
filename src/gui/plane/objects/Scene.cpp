#include "gui/plane/objects/Scene.h"

#include <algorithm>
#include <cmath>

namespace lumo::Plane
{

const Source* Scene::FarthestSource() const
{
    const Source* farthest = sources.empty() ? nullptr : &sources[0];
    float reach = -1.0f;
    for (const auto& source : sources) {
        const float own = std::max (std::abs (source.position.x), std::abs (source.position.y));
        if (source.visible && own >= reach) {
            farthest = &source;
            reach = own;
        }
    }
    return farthest;
}

bool Scene::AnySourceSelected() const
{
    return std::any_of (sources.begin(), sources.end(), [] (const Source& s) { return s.selected; });
}

bool Scene::AnySourceEditable() const
{
    return std::any_of (sources.begin(), sources.end(), [] (const Source& s) { return s.Editable(); });
}

bool Scene::AllSourcesEditable() const
{
    return std::all_of (sources.begin(), sources.end(), [] (const Source& s) { return s.Editable(); });
}

bool Scene::AllSpeakersEditable() const
{
    return std::all_of (speakers.begin(), speakers.end(), [] (const Speaker& s) { return s.editable; });
}

std::vector<bool> Scene::Selection() const
{
    std::vector<bool> flags;
    flags.reserve (sources.size());
    for (const auto& source : sources)
        flags.push_back (source.selected);
    return flags;
}

std::vector<bool> Scene::AreasHolding (const qel::Point3& point) const
{
    std::vector<bool> flags;
    flags.reserve (areas.size());
    for (const auto& area : areas)
        flags.push_back (area.Contains (point));
    return flags;
}

}
