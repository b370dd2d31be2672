#include "ControlFuzz.h"
#include "FuzzBytes.h"
#include "external/CoordinateMessages.h"

#include <cmath>

using orvanemax::Atoms;

namespace
{

bool areEqual (const qel::Point3& a, const qel::Point3& b) { return a.x == b.x && a.y == b.y && a.z == b.z; }

/** One object for the whole process: parsing positions does not change it. */
t_halcyra_control* control()
{
    static auto& fuzz = *new ControlFuzz;
    static const auto* box = fuzz.patch.make ("a", "halcyra~.control @numsources 4 @numspeakers 3");
    require (box != nullptr);
    return reinterpret_cast<t_halcyra_control*> (box->object);
}

using ReadOne = bool (*) (t_halcyra_control*, qel::Point3&, Atoms);
constexpr ReadOne readersOfOne[] = { halcyra::parseOnePoint, halcyra::parseOneSource, halcyra::parseOneSpeaker };

/** Accepted points are finite; rejected input leaves the point unchanged. */
void readOne (FuzzBytes& input, Atoms atoms)
{
    qel::Point3 point{ 1, 2, 3 };
    const auto before = point;
    const bool good = input.oneOf (readersOfOne) (control(), point, atoms);
    require (qel::isFinite (point) && (good || areEqual (point, before)));
}

void readMany (FuzzBytes& input, Atoms atoms)
{
    const auto read = input.choice (2) == 0 ? halcyra::parseManyPoints : halcyra::parseAllSpeakers;
    qel::Point3Array points (3);
    if (read (control(), points, atoms))
        for (const auto& point : points)
            require (qel::isFinite (point));
}

/** Any word may select a format; any finite point is written as finite numbers or not at all. */
void write (FuzzBytes& input)
{
    auto* x = control();
    halcyra::setOutputFormat (x, gensym (input.word().c_str()));
    qel::Point3 point{ static_cast<float> (input.number()), static_cast<float> (input.number()),
                       static_cast<float> (input.number()) };
    t_atom written[qel::maxCoordinateValues] = {};
    auto* end = written;
    if (qel::isFinite (point) && halcyra::writeInFormat (x, point, end))
        for (const auto* atom = written; atom != end; ++atom)
            require (std::isfinite (atom_getfloat (atom)));
}

}

/** Parses lists of atoms as positions with each message reader, and writes points in each format. */
extern "C" int LLVMFuzzerTestOneInput (const std::uint8_t* data, std::size_t size)
{
    control();
    FuzzBytes input (data, size);
    while (! input.isOver()) {
        const auto kind = input.choice (4);
        auto list = input.atoms (14);
        if (input.choice (2) == 0 && ! list.empty())
            atom_setsym (&list[input.choice (2) % list.size()],
                         gensym (qel::nameOfCoordinateType (
                             static_cast<qel::CoordinateType> (input.choice (qel::numCoordinateTypes)))));
        const Atoms atoms (static_cast<t_clong> (list.size()), list.data());
        if (kind == 0)
            write (input);
        else if (kind == 1)
            readMany (input, atoms);
        else
            readOne (input, atoms);
    }
    return 0;
}
