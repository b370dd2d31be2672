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

/** A named set of positions: one point in metres per source, in source order. */
struct CoordinatesSnapshot
{
    String name;
    Point3Array points;
};

/** Snapshots in the order in which their names were first stored. Names are compared byte by byte, case-sensitive. */
class CoordinatesSnapshotStore
{
public:
    [[nodiscard]] std::size_t size() const noexcept { return snapshots.size(); }
    [[nodiscard]] bool empty() const noexcept { return snapshots.empty(); }

    /** Index in that order, from 0; -1 for an unknown name. Linear time. */
    [[nodiscard]] int findIndex (const String& name) const;
    /** A shared empty array for an unknown name. */
    [[nodiscard]] const Point3Array& points (const String& name) const;
    /** Replaces the points of an existing name; a new name is appended. */
    void store (const String& name, Point3Array points);
    /** Does nothing for an unknown name. */
    void remove (const String& name);
    void removeAll() noexcept;
    /** Replaces the list's contents with the names, in order. */
    void listNames (Vector<String>& names) const;
    /** Blends two snapshots, the first at 0 and the second at 1; the result is as long as the shorter one. The amount
        is clamped to 0 to 1. If either name is unknown, the output is unchanged. */
    void interpolate (Point3Array& output, const String& nameA, const String& nameB, float amount) const;

    /** Adds a file's snapshots, each as store does. Throws NoSuchFile, "error parsing file " and the quoted path (a
        malformed file changes nothing), or the first bad snapshot's fault; the snapshots before it stay in the store.
        Memory beyond the snapshots: the file's size. */
    bool read (const File& file);
    /** Writes all snapshots that have points. Returns false if the file could not be written; it is then unchanged.
        Throws "no snapshot", or an error if the file exists and must not be overwritten. An empty version is
        omitted. */
    bool write (const File& file, const String& version, bool overwrite) const;

private:
    using Snapshots = std::list<CoordinatesSnapshot>;

    [[nodiscard]] const CoordinatesSnapshot* find (const String& name) const;

    /** A list, so that removing one of many moves no other. */
    Snapshots snapshots;
    /** Snapshots by name. The keys point into the snapshots' own names. */
    std::unordered_map<std::string_view, Snapshots::iterator> places;
};

}
