#pragma once
#include "gui/plane/objects/Area.h"
#include "gui/plane/objects/Source.h"
#include "gui/plane/objects/SpeakerGeometry.h"

#include <vector>

namespace lumo::Plane
{

/** The objects on the plane; read-only for the layers. */
struct Scene
{
    static constexpr std::size_t largestCount = 256;
    static constexpr int none = -1;

    qel::Vector<Source> sources;
    qel::Vector<Speaker> speakers;
    std::vector<Area> areas;
    SpeakerGeometry speakerGeometry;
    int selectedSpeaker = none;

    [[nodiscard]] bool AnySourceSelected() const;
    [[nodiscard]] bool AnySourceEditable() const;
    [[nodiscard]] bool AllSourcesEditable() const;
    [[nodiscard]] bool AllSpeakersEditable() const;
    [[nodiscard]] std::vector<bool> Selection() const;
    [[nodiscard]] std::vector<bool> AreasHolding (const qel::Point3& point) const;
};

}
