#include "files/OrvaneDspFileWriter.h"
#include "files/OrvaneDspNoSuchFile.h"
#include "files/OrvaneDspTemporaryFile.h"
#include "geometry/OrvaneDspCoordinatesSnapshot.h"
#include "math/OrvaneDspSort.h"
#include "text/OrvaneDspXmlParser.h"
#include "text/OrvaneDspXmlWriter.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace qel
{

namespace
{

/** In bytes; the file is written in chunks of about this size. */
constexpr std::size_t pieceSize = 65536;

/** A point's axis and its name in the file. */
struct Axis
{
    const char* name;
    float Point3::*value;
};

constexpr Axis axes[] = { { "x", &Point3::x }, { "y", &Point3::y }, { "z", &Point3::z } };

const std::string* valueOf (const XmlAttributes& attributes, std::string_view name)
{
    const auto found =
        std::find_if (attributes.begin(), attributes.end(), [name] (const auto& one) { return one.name == name; });
    return found == attributes.end() ? nullptr : &found->value;
}

/** Builds snapshots while a document is parsed. Keeps those before the first bad one. */
class SnapshotBuilder : public XmlVisitor
{
public:
    std::list<CoordinatesSnapshot> snapshots;
    /** What is wrong with the first bad snapshot; empty if all are valid. */
    String complaint;

    void startElement (std::string_view tagName, const XmlAttributes& attributes) override
    {
        ++depth;
        if (depth == snapshotDepth)
            startSnapshot (tagName, attributes);
        else if (depth == sourceDepth && tagName == "source")
            addSource (attributes);
    }

    void endElement() override
    {
        if (depth-- == snapshotDepth && complaint.empty())
            endSnapshot();
    }

    void text (std::string_view) override
    {
        if (depth == snapshotDepth - 1)
            complain ("invalid snapshot");
    }

private:
    static constexpr int snapshotDepth = 2, sourceDepth = 3; // the root's is 1

    void complain (const String& fault)
    {
        if (complaint.empty())
            complaint = fault;
    }

    void startSnapshot (std::string_view tagName, const XmlAttributes& attributes)
    {
        if (tagName != "snapshot")
            return complain ("invalid snapshot");
        const auto* const given = valueOf (attributes, "name");
        if (given == nullptr)
            return complain ("invalid name");
        name = *given;
        indices.clear();
        points.clear();
        lacksIndex = hasBadPlace = false;
    }

    /** Non-numeric text counts as 0; numbers outside the range of float are rejected. */
    void addSource (const XmlAttributes& attributes)
    {
        const auto* const index = valueOf (attributes, "index");
        lacksIndex = lacksIndex || index == nullptr;
        Point3 point;
        for (const auto& axis : axes) {
            const auto* const given = valueOf (attributes, axis.name);
            const auto value = given == nullptr ? 0.0F : static_cast<float> (String (*given).toDouble());
            hasBadPlace = hasBadPlace || given == nullptr || ! std::isfinite (value);
            point.*axis.value = value;
        }
        indices.push_back (index == nullptr ? 0 : String (*index).toInt());
        points.push_back (point);
    }

    /** The indices must be 1 to their count, in any order. */
    [[nodiscard]] const char* faultOfSnapshot() const
    {
        if (lacksIndex)
            return "invalid index in snapshot ";
        if (indices.size() > 1 && hasRepetitions (indices, false))
            return "index repetitions in snapshot ";
        const auto isInRange = [count = indices.size()] (int index) {
            return index >= 1 && static_cast<std::size_t> (index) <= count;
        };
        if (indices.empty() || ! std::all_of (indices.begin(), indices.end(), isInRange))
            return "invalid index range in snapshot ";
        return hasBadPlace ? "invalid x y or z in snapshot " : nullptr;
    }

    void endSnapshot()
    {
        if (const auto* const fault = faultOfSnapshot())
            return complain (fault + name);
        auto& snapshot = snapshots.emplace_back();
        snapshot.name = name;
        snapshot.points.resize (points.size());
        for (std::size_t i = 0; i < points.size(); ++i)
            snapshot.points[static_cast<std::size_t> (indices[i] - 1)] = points[i];
    }

    int depth = 0;
    String name;
    Vector<int> indices;
    Point3Array points; // in file order
    bool lacksIndex = false, hasBadPlace = false;
};

void writeSnapshot (XmlWriter& writer, const CoordinatesSnapshot& snapshot)
{
    writer.start ("snapshot");
    writer.attribute ("name", snapshot.name.str());
    int index = 0;
    for (const auto& point : snapshot.points) {
        writer.start ("source");
        writer.attribute ("index", String (++index).str());
        for (const auto& axis : axes)
            writer.attribute (axis.name, xmlNumber (point.*axis.value).str());
        writer.end();
    }
    writer.end();
}

}

bool CoordinatesSnapshotStore::read (const File& file)
{
    if (! file.exists())
        throw exceptions::NoSuchFile (file, QEL_HERE);
    SnapshotBuilder builder;
    if (! XmlParser().parse (file, builder))
        throw Exception ("error parsing file " + file.path().quoted(), QEL_HERE);

    for (; ! builder.snapshots.empty(); builder.snapshots.pop_front()) {
        auto& snapshot = builder.snapshots.front();
        store (snapshot.name, std::move (snapshot.points));
    }
    if (! builder.complaint.empty())
        throw Exception (builder.complaint, QEL_HERE);
    return true;
}

bool CoordinatesSnapshotStore::write (const File& file, const String& version, bool overwrite) const
{
    if (empty())
        throw Exception ("no snapshot", QEL_HERE);
    if (! overwrite && file.exists())
        throw Exception ("file " + file.path().quoted() + " already exists", QEL_HERE);

    return replaceFile (file, [&] (FileWriter& fileWriter) {
        MemoryOutput piece (pieceSize + pieceSize / 4);
        const auto flush = [&] {
            const bool isWritten = fileWriter.write (piece);
            piece.reset();
            return isWritten;
        };

        const XmlLayout layout;
        XmlWriter writer (piece, layout);
        writer.startDocument();
        writer.start ("ambrel.viewer");
        if (! version.empty())
            writer.attribute ("version", version.str());
        for (const auto& snapshot : snapshots) {
            if (! snapshot.points.empty())
                writeSnapshot (writer, snapshot);
            if (piece.size() >= pieceSize && ! flush())
                return false;
        }
        writer.end();
        writer.endDocument();
        return flush();
    });
}

}
