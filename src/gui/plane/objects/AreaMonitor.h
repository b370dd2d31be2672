#pragma once
#include "gui/plane/objects/Listener.h"
#include "gui/plane/objects/Scene.h"

#include <functional>

namespace lumo::Plane
{

/** Reports which areas contain the listener, each speaker and each source. Stores nothing, and reports nothing while
    its switch is off. */
class AreaMonitor
{
public:
    /** Receives one flag for each area. */
    struct Reports
    {
        std::function<void (const std::vector<bool>&)> listener;
        std::function<void (std::size_t, const std::vector<bool>&)> speaker, source;
    };

    /** All references must outlive this object. */
    AreaMonitor (const Scene& sceneToWatch, const Listener& listenerToWatch, const bool& onFlag, Reports receivers)
        : scene (sceneToWatch), listener (listenerToWatch), on (onFlag), reports (std::move (receivers))
    {}

    void ReportListener() const;
    void ReportSpeaker (std::size_t index) const;
    void ReportSource (std::size_t index) const;
    void ReportSources() const;
    /** The listener, the speakers, the sources. */
    void ReportAll() const;

private:
    const Scene& scene;
    const Listener& listener;
    const bool& on;
    Reports reports;
};

}
