#include "files/OrvaneDspNoSuchFile.h"
#include "geometry/OrvaneDspCoordinatesSnapshot.h"
#include "math/OrvaneDspSort.h"
#include "text/OrvaneDspXmlElement.h"

#include <algorithm>
#include <cmath>

namespace qel
{

namespace
{

constexpr std::size_t lineWrapLength = 60;

/** An axis of a point, under its name in the file. */
struct Axis
{
    const char* name;
    float Point3::*value;
};

constexpr Axis axes[] = { { "x", &Point3::x }, { "y", &Point3::y }, { "z", &Point3::z } };

template <typename Visitor>
void forEachSource (const XmlElement& snapshot, Visitor&& visit)
{
    for (const auto* child = snapshot.firstChild(); child != nullptr; child = child->nextSibling())
        if (child->hasTagName ("source"))
            visit (*child);
}

/** The indices must be those from 1 to their number, in any order. Returns the number. */
std::size_t checkedIndices (const XmlElement& element, const String& name)
{
    Vector<int> indices;
    forEachSource (element, [&] (const XmlElement& source) {
        if (! source.hasAttribute ("index"))
            throw Exception ("invalid index in snapshot " + name, QEL_HERE);
        indices.push_back (source.intAttribute ("index"));
    });
    if (indices.size() > 1 && hasRepetitions (indices, false))
        throw Exception ("index repetitions in snapshot " + name, QEL_HERE);
    const auto isInRange = [count = indices.size()] (int index) {
        return index >= 1 && static_cast<std::size_t> (index) <= count;
    };
    if (indices.empty() || ! std::all_of (indices.begin(), indices.end(), isInRange))
        throw Exception ("invalid index range in snapshot " + name, QEL_HERE);
    return indices.size();
}

/** A text that is no number counts as 0; a number that a float can't hold is refused. */
Point3 pointOf (const XmlElement& source, const String& name)
{
    Point3 point;
    for (const auto& axis : axes) {
        const auto value = static_cast<float> (source.doubleAttribute (axis.name, 0.0));
        if (! source.hasAttribute (axis.name) || ! std::isfinite (value))
            throw Exception ("invalid x y or z in snapshot " + name, QEL_HERE);
        point.*axis.value = value;
    }
    return point;
}

CoordinatesSnapshot snapshotOf (const XmlElement& element)
{
    if (! element.hasTagName ("snapshot"))
        throw Exception ("invalid snapshot", QEL_HERE);
    if (! element.hasAttribute ("name"))
        throw Exception ("invalid name", QEL_HERE);

    CoordinatesSnapshot snapshot{ element.textAttribute ("name"), {} };
    snapshot.points.resize (checkedIndices (element, snapshot.name));
    forEachSource (element, [&] (const XmlElement& source) {
        snapshot.points[static_cast<std::size_t> (source.intAttribute ("index") - 1)] = pointOf (source, snapshot.name);
    });
    return snapshot;
}

std::unique_ptr<XmlElement> elementOf (const CoordinatesSnapshot& snapshot)
{
    auto element = std::make_unique<XmlElement> ("snapshot");
    element->setAttribute ("name", snapshot.name);
    int index = 0;
    for (const auto& point : snapshot.points) {
        auto* const source = element->addChild (std::make_unique<XmlElement> ("source"));
        source->setAttribute ("index", ++index);
        for (const auto& axis : axes)
            source->setAttribute (axis.name, point.*axis.value);
    }
    return element;
}

}

bool CoordinatesSnapshotStore::read (const File& file)
{
    if (! file.exists())
        throw exceptions::NoSuchFile (file, QEL_HERE);
    const auto document = XmlElement::parse (file);
    if (! document)
        throw Exception ("error parsing file " + file.path().quoted(), QEL_HERE);

    for (const auto* child = document->firstChild(); child != nullptr; child = child->nextSibling()) {
        const auto snapshot = snapshotOf (*child);
        store (snapshot.name, snapshot.points);
    }
    return true;
}

bool CoordinatesSnapshotStore::write (const File& file, const String& version, bool overwrite) const
{
    if (empty())
        throw Exception ("no snapshot", QEL_HERE);
    if (! overwrite && file.exists())
        throw Exception ("file " + file.path().quoted() + " already exists", QEL_HERE);

    XmlElement document ("ambrel.viewer");
    if (! version.empty())
        document.setAttribute ("version", version);
    for (const auto& snapshot : snapshots)
        if (! snapshot->points.empty())
            document.addChild (elementOf (*snapshot));
    return document.writeTo (file, {}, "UTF-8", lineWrapLength);
}

}
