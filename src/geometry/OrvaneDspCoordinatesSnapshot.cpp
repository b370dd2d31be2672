#include "geometry/OrvaneDspCoordinatesSnapshot.h"

#include <algorithm>

namespace qel
{

int CoordinatesSnapshotStore::findIndex (const String& name) const
{
    const auto place = places.find (name.str());
    return place == places.end() ? -1 : static_cast<int> (place->second);
}

const Point3Array& CoordinatesSnapshotStore::points (const String& name) const
{
    static const Point3Array none;
    const auto index = findIndex (name);
    return index < 0 ? none : snapshots[static_cast<std::size_t> (index)]->points;
}

void CoordinatesSnapshotStore::store (const String& name, const Point3Array& points)
{
    if (const auto index = findIndex (name); index >= 0) {
        snapshots[static_cast<std::size_t> (index)]->points = points;
        return;
    }
    snapshots.push_back (std::make_unique<CoordinatesSnapshot> (CoordinatesSnapshot{ name, points }));
    places.emplace (snapshots.back()->name.str(), snapshots.size() - 1);
}

void CoordinatesSnapshotStore::remove (const String& name)
{
    const auto place = places.find (name.str());
    if (place == places.end())
        return;
    const auto index = place->second;
    places.erase (place);
    snapshots.erase (index);
    for (auto& [other, otherIndex] : places)
        if (otherIndex > index)
            --otherIndex;
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
        names.push_back (snapshot->name);
}

void CoordinatesSnapshotStore::interpolate (Point3Array& output, const String& nameA, const String& nameB,
                                            float amount) const
{
    if (findIndex (nameA) < 0 || findIndex (nameB) < 0)
        return;
    const auto& a = points (nameA);
    const auto& b = points (nameB);
    const float ofB = amount > 0 ? std::min (amount, 1.0F) : 0.0F; // no number counts as 0
    const float ofA = 1.0F - ofB;
    output.resize (std::min (a.size(), b.size()));
    for (std::size_t i = 0; i < output.size(); ++i)
        output[i] = { ofA * a[i].x + ofB * b[i].x, ofA * a[i].y + ofB * b[i].y, ofA * a[i].z + ofB * b[i].z };
}

}
