#pragma once
#include "gui/plane/objects/Area.h"
#include "gui/plane/objects/Source.h"
#include "gui/plane/objects/Speaker.h"
#include "gui/scene/SpeakerGeometry.h"

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

    /** The farthest visible source by x and y, even in the front view; the last of equals. The first source if none is
        visible, null if there is none. */
    [[nodiscard]] const Source* FarthestSource() const;
    [[nodiscard]] bool AnySourceSelected() const;
    [[nodiscard]] bool AnySourceEditable() const;
    [[nodiscard]] bool AllSourcesEditable() const;
    [[nodiscard]] bool AllSpeakersEditable() const;
    [[nodiscard]] std::vector<bool> Selection() const;
    [[nodiscard]] std::vector<bool> AreasHolding (const qel::Point3& point) const;
};

}
