#include "gui/plane/objects/Selection.h"

#include <algorithm>

namespace lumo::Plane
{

bool Selection::Any() const { return scene.AnySourceSelected() || listener || scene.selectedSpeaker != Scene::none; }

void Selection::Press (const Hit& hit, bool toggle)
{
    ClearSpeakerAndListener();
    if (hit.speaker != Scene::none)
        return TakeSpeaker (static_cast<std::size_t> (hit.speaker));
    if (hit.listener)
        return TakeListener();
    if (hit.source == Scene::none)
        return ClearSources();
    auto& source = scene.sources[static_cast<std::size_t> (hit.source)];
    if (toggle) {
        source.selected = ! source.selected;
        return;
    }
    if (! source.selected)
        ClearSources();
    source.selected = true;
}

void Selection::Clear()
{
    ClearSources();
    ClearSpeakerAndListener();
}

void Selection::ClearSources()
{
    for (auto& source : scene.sources)
        source.selected = false;
}

void Selection::ClearSpeakerAndListener()
{
    listener = false;
    scene.selectedSpeaker = Scene::none;
}

void Selection::TakeSource (std::size_t index)
{
    Clear();
    scene.sources[index].selected = true;
}

void Selection::TakeSpeaker (std::size_t index)
{
    Clear();
    scene.selectedSpeaker = static_cast<int> (index);
}

void Selection::TakeListener()
{
    Clear();
    listener = true;
}

bool Selection::TakeAllSources()
{
    if (! scene.AnySourceEditable())
        return false;
    ClearSpeakerAndListener();
    for (auto& source : scene.sources)
        source.selected = source.selected || source.Editable();
    return true;
}

bool Selection::TakeNextSource()
{
    const auto flags = scene.Selection();
    if (! scene.AnySourceEditable() || std::count (flags.begin(), flags.end(), true) > 1)
        return false;
    const auto present = std::find (flags.begin(), flags.end(), true);
    const auto next = present == flags.end() ? 0 : static_cast<std::size_t> (present - flags.begin() + 1);
    Clear();
    auto& source = scene.sources[next % flags.size()];
    source.selected = source.Editable();
    return true;
}

void Selection::SetSources (const std::vector<bool>& flags)
{
    for (std::size_t i = 0; i < std::min (flags.size(), scene.sources.size()); ++i)
        scene.sources[i].selected = flags[i];
}

}
