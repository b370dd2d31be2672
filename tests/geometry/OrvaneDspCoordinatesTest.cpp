#include "geometry/OrvaneDspCoordinates.h"
#include "PointMatchers.h"
#include "geometry/OrvaneDspSpherical.h"

#include <array>
#include <limits>
#include <random>
#include <string>
#include <vector>

using namespace qel;

namespace
{

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float largest = std::numeric_limits<float>::max();

using Values = std::vector<float>;

std::vector<CoordinateType> allTypes()
{
    std::vector<CoordinateType> types (numCoordinateTypes);
    for (std::size_t i = 0; i < types.size(); ++i)
        types[i] = static_cast<CoordinateType> (i);
    return types;
}

CoordinateType typeOf (const char* name)
{
    auto type = CoordinateType::none;
    EXPECT_TRUE (findCoordinateType (name, type)) << name;
    return type;
}

bool isReadable (CoordinateType type)
{
    auto found = CoordinateType::none;
    return findCoordinateType (nameOfCoordinateType (type), found);
}

Point3 read (Point3 p, const char* type, const Values& values)
{
    EXPECT_TRUE (setPoint (p, typeOf (type), values.data(), values.size())) << type;
    return p;
}

Values written (const Point3& p, CoordinateType type)
{
    Values values (coordinateCount (type));
    EXPECT_TRUE (writePoint (p, type, values.data()));
    return values;
}

}

TEST (CoordinateTypes, HaveTheirNumbersNamesAndCounts)
{
    std::string inOrder;
    for (const auto type : allTypes())
        inOrder += nameOfCoordinateType (type) + std::string (" ") + std::to_string (coordinateCount (type)) + ", ";
    EXPECT_EQ (inOrder, "xyz 3, xy 2, x++ 1, y++ 1, z++ 1, ade 3, aed 3, ae 2, ad 2, az 1, azim 1, azim++ 1, elev 1, "
                        "elev++ 1, azimelev 2, dist 1, dist++ 1, dist*= 1, ambrel3 3, wfs 2, x 1, y 1, z 1, "
                        "sofacartesian 3, sofaspherical 3, none 0, ");
    EXPECT_STREQ (nameOfCoordinateType (CoordinateType::ade), "ade");
    EXPECT_STREQ (nameOfCoordinateType (CoordinateType::scaleDist), "dist*=");
    EXPECT_STREQ (nameOfCoordinateType (CoordinateType::none), "none");
}

TEST (CoordinateTypes, AreFoundByTheirNameIfMessagesMayUseThem)
{
    for (const auto type : allTypes()) {
        const std::string name = nameOfCoordinateType (type);
        auto found = CoordinateType::none;
        EXPECT_EQ (findCoordinateType (name, found), type < CoordinateType::sofacartesian) << name;
        EXPECT_EQ (found, type < CoordinateType::sofacartesian ? type : CoordinateType::none);
    }
    auto untouched = CoordinateType::wfs;
    for (const char* bad : { "", "XYZ", "xyzz", "xy ", "cartesian", "/source/" })
        EXPECT_FALSE (findCoordinateType (bad, untouched)) << bad;
    EXPECT_EQ (untouched, CoordinateType::wfs);
}

TEST (CoordinateTypes, HaveNothingBeyondTheirNumbers)
{
    for (const std::int32_t number : { -1, 26, 1000, std::numeric_limits<std::int32_t>::min() }) {
        const auto type = static_cast<CoordinateType> (number);
        Point3 p{ 1, 2, 3 };
        float values[maxCoordinateValues] = { 1, 1, 1 };
        EXPECT_STREQ (nameOfCoordinateType (type), "");
        EXPECT_EQ (coordinateCount (type), 0u);
        EXPECT_FALSE (isWritable (type));
        EXPECT_FALSE (setPoint (p, type, values, 3));
        EXPECT_FALSE (writePoint (p, type, values));
        EXPECT_EQ (p, (Point3{ 1, 2, 3 }));
    }
}

TEST (SetPoint, ReadsEveryFormat)
{
    struct Row
    {
        const char* type;
        Values values;
        Point3 expected;
    };
    const Point3 start{ 3, 4, 0 }; // distance 5, azimuth 36.87, elevation 0
    const float root = std::sqrt (0.5f);
    const Row rows[] = {
        { "xyz", { 1, 2, 3 }, { 1, 2, 3 } },
        { "xyz", { 1, 2, 3, infinity }, { 1, 2, 3 } }, // the fourth is ignored
        { "xy", { 1, 2 }, { 1, 2, 0 } },
        { "x++", { 1 }, { 4, 4, 0 } },
        { "y++", { -1 }, { 3, 3, 0 } },
        { "z++", { 2 }, { 3, 4, 2 } },
        { "x", { 7 }, { 7, 4, 0 } },
        { "y", { 7 }, { 3, 7, 0 } },
        { "z", { 7 }, { 3, 4, 7 } },
        { "ade", { 90, 2, 0 }, { 2, 0, 0 } },
        { "ade", { 0, 2, 45 }, { 0, 2 * root, 2 * root } },
        { "aed", { 0, 45, 2 }, { 0, 2 * root, 2 * root } },
        { "aed", { 0, 0, -2 }, { 0, -2, 0 } },
        { "ae", { -90, 0 }, { -1, 0, 0 } },
        { "ad", { 180, 3 }, { 0, -3, 0 } },
        { "az", { 45 }, { root, root, 0 } },
        { "azim", { 90 }, { 5, 0, 0 } },
        { "azim++", { 180 }, { -3, -4, 0 } },
        { "elev", { 90 }, { 0, 0, 5 } },
        { "elev++", { -90 }, { 0, 0, -5 } },
        { "elev", { 180 }, { -3, -4, 0 } },
        { "azimelev", { 0, 45 }, { 0, 5 * root, 5 * root } },
        { "dist", { 10 }, { 6, 8, 0 } },
        { "dist", { -10 }, { 6, 8, 0 } },
        { "dist++", { -2.5f }, { 1.5f, 2, 0 } },
        { "dist*=", { 0.5f }, { 1.5f, 2, 0 } },
        { "ambrel3", { 90, 2, 0 }, { -2, 0, 0 } },
        { "wfs", { 90, 2 }, { -2, 0, 0 } },
    };
    for (const auto& row : rows)
        EXPECT_THAT (read (start, row.type, row.values), isAbout (row.expected))
            << row.type << " " << testing::PrintToString (row.values);
}

TEST (SetPoint, KeepsTheDirectionOfWhatComesNear)
{
    const Point3 start{ 3, -4, 5 };
    for (const char* type : { "dist", "dist++", "dist*=" }) {
        const float value = type == std::string ("dist++") ? -100.0f : 0.0f;
        const Point3 p = read (start, type, { value });
        EXPECT_NEAR (distance (p), 1e-5f, 1e-10f) << type;
        EXPECT_NEAR (azimuth (p), azimuth (start), 1e-3f) << type;
        EXPECT_NEAR (elevation (p), elevation (start), 1e-3f) << type;
    }
    EXPECT_NEAR (distance (read (start, "dist*=", { -2 })), 1e-5f, 1e-10f);
    EXPECT_THAT (read ({}, "dist", { 2 }), isAbout ({ 2, 0, 0 })) << "the origin has the angle of atan2 (0, 0)";
}

TEST (SetPoint, RefusesTooFewAndUnreadableAndNonFiniteValues)
{
    const Point3 start{ 1, 2, 3 };
    for (const auto type : allTypes()) {
        Point3 p = start;
        const auto count = coordinateCount (type);
        const Values good{ 1, 2, 3 };
        if (! isReadable (type)) {
            EXPECT_FALSE (setPoint (p, type, good.data(), good.size())) << nameOfCoordinateType (type);
            continue;
        }
        EXPECT_FALSE (setPoint (p, type, good.data(), count - 1)) << nameOfCoordinateType (type);
        for (std::size_t i = 0; i < count; ++i)
            for (const float bad : { infinity, -infinity, std::nanf ("") }) {
                Values values = good;
                values[i] = bad;
                EXPECT_FALSE (setPoint (p, type, values.data(), values.size())) << nameOfCoordinateType (type);
            }
        EXPECT_EQ (p, start) << nameOfCoordinateType (type);
        EXPECT_TRUE (setPoint (p, type, good.data(), count)) << nameOfCoordinateType (type);
    }
}

TEST (SetPoint, NeverLeavesThePointNonFinite)
{
    const Point3 starts[] = { {}, { 1, 2, 3 }, { largest, 0, 0 }, { 1e38f, -1e38f, 1e38f }, { 1e-45f, 0, -1e-45f } };
    const float extremes[] = { 0, -0.0f, 1e-45f, -1e-38f, 1e7f, -1e20f, largest, -largest };
    for (const auto type : allTypes())
        for (const auto& start : starts)
            for (const float a : extremes)
                for (const float b : extremes)
                    for (const float c : extremes) {
                        Point3 p = start;
                        const float values[] = { a, b, c };
                        const bool isRead = setPoint (p, type, values, 3);
                        EXPECT_TRUE (isFinite (p)) << nameOfCoordinateType (type) << " " << a << " " << b << " " << c;
                        EXPECT_TRUE (isRead || p == start) << nameOfCoordinateType (type);
                    }
}

TEST (WritePoint, TellsWorkedNumbers)
{
    EXPECT_EQ (written ({ 1, 2, 3 }, CoordinateType::xyz), (Values{ 1, 2, 3 }));
    EXPECT_EQ (written ({ 1, 2, 3 }, CoordinateType::xy), (Values{ 1, 2 }));
    EXPECT_EQ (written ({ 0, 2, 0 }, CoordinateType::ade), (Values{ 0, 2, 0 }));
    EXPECT_EQ (written ({ 0, 2, 0 }, CoordinateType::aed), (Values{ 0, 0, 2 }));
    EXPECT_EQ (written ({ 5, 0, 0 }, CoordinateType::ae), (Values{ 90, 0 }));
    EXPECT_EQ (written ({ 5, 0, 0 }, CoordinateType::ad), (Values{ 90, 5 }));
    EXPECT_EQ (written ({ 5, 0, 0 }, CoordinateType::az), (Values{ 90 }));
    EXPECT_EQ (written ({ 5, 0, 0 }, CoordinateType::ambrel3), (Values{ -90, 5, 0 }));
    EXPECT_EQ (written ({ 0, 1, 0 }, CoordinateType::wfs), (Values{ 0, 1 }));
    EXPECT_EQ (written ({ 1, 0, 0 }, CoordinateType::wfs), (Values{ 270, 1 }));
    EXPECT_EQ (written ({}, CoordinateType::aed), (Values{ 90, 0, 0 }));
}

TEST (WritePoint, KnowsTheAbsoluteFormsAlone)
{
    std::string names;
    for (const auto type : allTypes()) {
        float values[maxCoordinateValues] = { -1, -1, -1 };
        const bool isWritten = writePoint ({ 1, 2, 3 }, type, values);
        EXPECT_EQ (isWritten, isWritable (type));
        EXPECT_TRUE (isWritten || values[0] == -1) << nameOfCoordinateType (type);
        if (isWritten)
            names += nameOfCoordinateType (type) + std::string (" ");
    }
    EXPECT_EQ (names, "xyz xy ade aed ae ad az ambrel3 wfs ");

    float values[maxCoordinateValues] = {};
    EXPECT_FALSE (writePoint ({ largest, largest, 0 }, CoordinateType::aed, values)) << "its distance is no number";
    EXPECT_FALSE (writePoint ({ std::nanf (""), 0, 0 }, CoordinateType::xyz, values));
}

/** Missing components are set as the reader sets them: in the plane, or on the unit sphere. */
TEST (WritePoint, IsReadBackToTheSamePoint)
{
    std::mt19937 random (3);
    std::uniform_real_distribution<float> azimuth (-180, 180), elevation (-89, 89), magnitude (-4, 4);
    for (int i = 0; i < 5'000; ++i)
        for (const auto type : allTypes()) {
            const std::string name = nameOfCoordinateType (type);
            if (! isWritable (type))
                continue;
            const bool hasElevation = name.find ('e') != std::string::npos || name == "xyz";
            const bool hasDistance = name != "ae" && name != "az";
            const float r = hasDistance ? std::pow (10.0f, magnitude (random)) : 1.0f;
            const Point3 p = fromUserSpherical (azimuth (random), hasElevation ? elevation (random) : 0.0f, r);
            const Point3 again = read ({ 9, 9, 9 }, name.c_str(), written (p, type));
            EXPECT_LT (distance (again - p), 1e-5f * r) << name << " " << testing::PrintToString (p);
        }
}

TEST (WritePoint, StaysWithinTheRangesOfItsAngles)
{
    std::mt19937 random (4);
    std::normal_distribution<float> coordinate (0, 100);
    for (int i = 0; i < 20'000; ++i) {
        const Point3 p{ coordinate (random), coordinate (random), i % 3 == 0 ? 0 : coordinate (random) };
        const Values aed = written (p, CoordinateType::aed), wfs = written (p, CoordinateType::wfs);
        EXPECT_TRUE (aed[0] >= -180 && aed[0] < 180 && std::abs (aed[1]) <= 90.00001f && aed[2] >= 0) << aed[0];
        EXPECT_TRUE (wfs[0] >= 0 && wfs[0] < 360 && wfs[1] == aed[2]) << wfs[0];
    }
}
