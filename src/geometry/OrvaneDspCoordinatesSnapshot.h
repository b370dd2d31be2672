#pragma once
#include "files/OrvaneDspFile.h"
#include "geometry/OrvaneDspPoint3.h"
#include "math/OrvaneDspVector.h"
#include "text/OrvaneDspString.h"

#include <list>
#include <string_view>
#include <unordered_map>

namespace qel
{

/** A named set of positions: one point in metres for a source, in source order. */
struct CoordinatesSnapshot
{
    String name;
    Point3Array points;
};

/** Snapshots in the order in which their names first came. Names are told apart byte by byte, with case. */
class CoordinatesSnapshotStore
{
public:
    [[nodiscard]] std::size_t size() const noexcept { return snapshots.size(); }
    [[nodiscard]] bool empty() const noexcept { return snapshots.empty(); }

    /** Place in the order, from 0; -1 if there is none of that name. Walks the snapshots before it. */
    [[nodiscard]] int findIndex (const String& name) const;
    /** A shared empty array if there is none of that name. */
    [[nodiscard]] const Point3Array& points (const String& name) const;
    /** Replaces the points of a name that is there; a new name goes to the end. */
    void store (const String& name, Point3Array points);
    /** Nothing happens if there is none of that name. */
    void remove (const String& name);
    void removeAll() noexcept;
    /** The names in order take the place of what the list held. */
    void listNames (Vector<String>& names) const;
    /** A mix of two snapshots, the first at 0 and the second at 1, as long as the shorter one. The amount is limited
        to 0 to 1. If either name is unknown, the output is left as it stands. */
    void interpolate (Point3Array& output, const String& nameA, const String& nameB, float amount) const;

    /** Adds a file's snapshots, each as store does. Raises NoSuchFile, "error parsing file " and the quoted path
        (a file that is malformed anywhere changes nothing), or the first bad snapshot's fault: those before it stay in
        the store. Memory beyond the snapshots: the file's size. */
    bool read (const File& file);
    /** Writes all snapshots that have points. False if the file could not be written: then it is as it was. Raises
        "no snapshot", or that the file exists if it must not be overwritten. An empty version is left out. */
    bool write (const File& file, const String& version, bool overwrite) const;

private:
    using Snapshots = std::list<CoordinatesSnapshot>;

    [[nodiscard]] const CoordinatesSnapshot* find (const String& name) const;

    /** A list, so that removing one of many moves no other. */
    Snapshots snapshots;
    /** Where each name is. The keys are the snapshots' own names. */
    std::unordered_map<std::string_view, Snapshots::iterator> places;
};

}
