#include "gui/plane/objects/AreaMonitor.h"

namespace lumo::Plane
{

void AreaMonitor::ReportListener() const
{
    if (on)
        reports.listener (scene.AreasHolding (listener.position));
}

void AreaMonitor::ReportSpeaker (std::size_t index) const
{
    if (on)
        reports.speaker (index, scene.AreasHolding (scene.speakers[index].position));
}

void AreaMonitor::ReportSource (std::size_t index) const
{
    if (on)
        reports.source (index, scene.AreasHolding (scene.sources[index].position));
}

void AreaMonitor::ReportSources() const
{
    for (std::size_t i = 0; i < scene.sources.size(); ++i)
        ReportSource (i);
}

void AreaMonitor::ReportAll() const
{
    ReportListener();
    for (std::size_t i = 0; i < scene.speakers.size(); ++i)
        ReportSpeaker (i);
    ReportSources();
}

}
