#include "external/CoordinateMessages.h"

#include "geometry/OrvaneDspSpherical.h"

#include <algorithm>
#include <string>

namespace halcyra
{
namespace
{

using orvanemax::Atoms;
using orvanemax::tellError;
using orvanemax::tellWarning;
using qel::CoordinateType;

/** Sets a point from the atoms of a type, which must all be numbers. */
bool readPoint (qel::Point3& point, CoordinateType type, Atoms atoms)
{
    std::array<float, qel::maxCoordinateValues> values{};
    const auto count = qel::coordinateCount (type);
    if (atoms.size() < count)
        return false;
    for (std::size_t i = 0; i < count; ++i) {
        if (! orvanemax::isNumber (atoms[i]))
            return false;
        values[i] = atoms.number (i);
    }
    return qel::setPoint (point, type, values.data(), count);
}

enum class TypeWord
{
    found,
    absent,
    unknown
};

/** Consumes the leading type word. Without one, defaults to ade with a warning. */
TypeWord takeType (t_halcyra_control* x, CoordinateType& type, Atoms& atoms)
{
    if (! atoms.fit ("s")) {
        type = CoordinateType::ade;
        tellWarning (x, "using default coordinate type (ade)");
        return TypeWord::absent;
    }
    if (! qel::findCoordinateType (atoms.symbol (0)->s_name, type))
        return TypeWord::unknown;
    atoms = atoms.from (1);
    return TypeWord::found;
}

/** Error texts of the readers of one point. */
struct PointTexts
{
    const char* tooFew;
    const char* tooMany; // precedes the number
    const char* unreadable;
};

constexpr PointTexts listenerTexts{ "invalid listener message", "too many listener positions. only ",
                                    "error reading listener position" };
constexpr PointTexts speakerTexts{ "invalid speaker message", "too many loudspeakers positions. only ",
                                   "error reading speaker position" };

bool parsePoint (t_halcyra_control* x, qel::Point3& point, Atoms atoms, const PointTexts& texts)
{
    CoordinateType type{};
    const auto fail = [x] (const char* text) {
        tellError (x, text);
        return false;
    };
    if (takeType (x, type, atoms) == TypeWord::unknown)
        return fail ("unknown coordinate type");
    const auto count = qel::coordinateCount (type);
    if (atoms.size() < count)
        return fail (texts.tooFew);
    if (atoms.size() > count)
        tellWarning (x, std::string (texts.tooMany) + "1 position will be read");
    return readPoint (point, type, atoms) || fail (texts.unreadable);
}

/** Azimuth, distance and elevation; trailing values may be missing and keep the point's. */
bool readAmbrel3 (qel::Point3& point, Atoms atoms)
{
    if (atoms.fit ("nnn"))
        return readPoint (point, CoordinateType::ambrel3, atoms);
    if (! atoms.fit ("n"))
        return false;
    auto moved = point;
    const auto azimuth = -atoms.number (0);
    const auto far = atoms.fit ("nn") ? atoms.number (1) : qel::distance (point);
    const std::array<float, 3> values{ azimuth, qel::elevation (point), far };
    const bool good = qel::setPoint (moved, CoordinateType::aed, values.data(), values.size());
    if (good)
        point = moved;
    return good;
}

bool invalidIndex (t_halcyra_control* x, const char* text, t_atom_long index)
{
    tellError (x, text + std::to_string (index));
    return false;
}

}

bool parseOnePoint (t_halcyra_control* x, qel::Point3& point, Atoms atoms)
{
    return parsePoint (x, point, atoms, listenerTexts);
}

bool parseOneSpeaker (t_halcyra_control* x, qel::Point3& point, Atoms atoms)
{
    if (atoms.fit ("l")) {
        const auto index = atoms.integer (0);
        if (index < 1 || index > x->numspeakers)
            return invalidIndex (x, "invalid speaker index ", index);
        atoms = atoms.from (1);
    }
    return parsePoint (x, point, atoms, speakerTexts);
}

bool parseOneSource (t_halcyra_control* x, qel::Point3& point, Atoms atoms)
{
    if (atoms.fit ("l")) {
        const auto index = atoms.integer (0);
        if (index < 1 || index > x->numsources)
            return invalidIndex (x, "invalid source index ", index);
        atoms = atoms.from (1);
    }
    CoordinateType type{};
    if (takeType (x, type, atoms) == TypeWord::unknown)
        return false;
    const auto count = qel::coordinateCount (type);
    const auto expected = std::to_string (count) + " coordinates";
    if (atoms.size() < count && type != CoordinateType::ambrel3) {
        tellError (x, "not enough source coordinates. expected " + expected);
        return false;
    }
    if (atoms.size() > count)
        tellWarning (x, "too many source coordinates. only " + expected + " will be read");
    if (type == CoordinateType::ambrel3 ? readAmbrel3 (point, atoms) : readPoint (point, type, atoms))
        return true;
    tellError (x, "error reading source coordinates");
    return false;
}

bool parseManyPoints (t_halcyra_control* x, qel::Point3Array& points, Atoms atoms)
{
    CoordinateType type{};
    if (takeType (x, type, atoms) == TypeWord::unknown) {
        points.clear();
        return false;
    }
    const auto count = qel::coordinateCount (type);
    if (atoms.size() % count != 0) {
        tellError (x, "error reading positions");
        return false;
    }
    points.resize (atoms.size() / count);
    for (std::size_t i = 0; i < points.size(); ++i)
        if (! readPoint (points[i], type, atoms.from (i * count))) {
            tellError (x, "error reading " + std::to_string (i + 1) + " th point position");
            return false;
        }
    return true;
}

bool parseAllSpeakers (t_halcyra_control* x, qel::Point3Array& points, Atoms atoms)
{
    CoordinateType type{};
    if (takeType (x, type, atoms) == TypeWord::unknown)
        return false;
    const auto count = qel::coordinateCount (type);
    const auto number = std::to_string (points.size());
    if (atoms.size() < points.size() * count) {
        tellError (x, "not enough loudspeakers positions. expected " + number + " loudspeakers positions");
        return false;
    }
    if (atoms.size() > points.size() * count)
        tellWarning (x, "too many loudspeakers positions. only " + number + " positions will be read");
    for (std::size_t i = 0; i < points.size(); ++i)
        if (! readPoint (points[i], type, atoms.from (i * count))) {
            tellError (x, "error reading " + std::to_string (i + 1) + " th speaker position");
            return false;
        }
    return true;
}

void setOutputFormat (t_halcyra_control* x, t_symbol* name)
{
    auto type = qel::defaultCoordinateType;
    if (! qel::findCoordinateType (name->s_name, type)) {
        type = qel::defaultCoordinateType;
        // The text says ade although aed is set: patches rely on it.
        tellWarning (x, std::string ("unknown coordinate type: ") + name->s_name +
                            ". using default coordinate type (ade)");
    }
    x->outputformat = static_cast<std::int32_t> (type);
    x->outputcount = static_cast<std::int32_t> (qel::coordinateCount (type));
    x->format = gensym (qel::nameOfCoordinateType (type));
}

bool writeInFormat (const t_halcyra_control* x, const qel::Point3& point, t_atom*& out)
{
    std::array<float, qel::maxCoordinateValues> values{};
    if (! qel::writePoint (point, static_cast<CoordinateType> (x->outputformat), values.data()))
        return false;
    for (std::int32_t i = 0; i < x->outputcount; ++i)
        atom_setfloat (out++, static_cast<double> (values[static_cast<std::size_t> (i)]));
    return true;
}

}
