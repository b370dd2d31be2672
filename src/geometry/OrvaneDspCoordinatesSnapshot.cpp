#include "geometry/OrvaneDspCoordinatesSnapshot.h"
#include "common/OrvaneDspGuard.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace qel
{

const CoordinatesSnapshot* CoordinatesSnapshotStore::find (const String& name) const
{
    const auto place = places.find (name.str());
    return place == places.end() ? nullptr : &*place->second;
}

int CoordinatesSnapshotStore::findIndex (const String& name) const
{
    const auto place = places.find (name.str());
    return place == places.end()
               ? -1
               : static_cast<int> (std::distance<Snapshots::const_iterator> (snapshots.begin(), place->second));
}

const Point3Array& CoordinatesSnapshotStore::points (const String& name) const
{
    static const Point3Array none;
    const auto* const snapshot = find (name);
    return snapshot == nullptr ? none : snapshot->points;
}

void CoordinatesSnapshotStore::store (const String& name, Point3Array points)
{
    if (const auto place = places.find (name.str()); place != places.end()) {
        place->second->points = std::move (points);
        return;
    }
    guardedGrowth (QEL_HERE, GuardText::whatOccurred, [&] {
        Snapshots added;
        added.push_back ({ name, std::move (points) });
        places.emplace (added.front().name.str(), added.begin());
        snapshots.splice (snapshots.end(), added);
    });
}

void CoordinatesSnapshotStore::remove (const String& name)
{
    if (const auto place = places.find (name.str()); place != places.end()) {
        const auto snapshot = place->second;
        places.erase (place); // first: its key points into the snapshot's name
        snapshots.erase (snapshot);
    }
}

void CoordinatesSnapshotStore::removeAll() noexcept
{
    places.clear();
    snapshots.clear();
}

void CoordinatesSnapshotStore::listNames (Vector<String>& names) const
{
    names.clear();
    for (const auto& snapshot : snapshots)
        names.push_back (snapshot.name);
}

void CoordinatesSnapshotStore::interpolate (Point3Array& output, const String& nameA, const String& nameB,
                                            float amount) const
{
    const auto* const first = find (nameA);
    const auto* const second = find (nameB);
    if (first == nullptr || second == nullptr)
        return;
    const auto& a = first->points;
    const auto& b = second->points;
    const float ofB = amount > 0 ? std::min (amount, 1.0F) : 0.0F; // NaN counts as 0
    const float ofA = 1.0F - ofB;
    output.resize (std::min (a.size(), b.size()));
    for (std::size_t i = 0; i < output.size(); ++i)
        output[i] = { ofA * a[i].x + ofB * b[i].x, ofA * a[i].y + ofB * b[i].y, ofA * a[i].z + ofB * b[i].z };
}

}
