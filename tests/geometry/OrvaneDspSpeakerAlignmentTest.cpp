#include "geometry/OrvaneDspSpeakerAlignment.h"
#include "PointMatchers.h"
#include "geometry/OrvaneDspSpherical.h"

#include <limits>
#include <random>

using namespace qel;

TEST (LineAndSphere, MeetTwiceOnceOrNever)
{
    Point3 first{ 9, 9, 9 }, second{ 9, 9, 9 };
    EXPECT_TRUE (intersectLineAndSphere ({ 0, 0, 0 }, { 1, 0, 0 }, { 5, 0, 0 }, 2, first, second));
    EXPECT_THAT (first, isAbout ({ 7, 0, 0 }));
    EXPECT_THAT (second, isAbout ({ 3, 0, 0 }));

    EXPECT_TRUE (intersectLineAndSphere ({ 0, 2, 0 }, { 1, 2, 0 }, { 0, 0, 0 }, 2, first, second));
    EXPECT_EQ (first, (Point3{ 0, 2, 0 })) << "a tangent";
    EXPECT_EQ (second, first);

    const Point3 before = first;
    EXPECT_FALSE (intersectLineAndSphere ({ 0, 3, 0 }, { 1, 3, 0 }, {}, 2, first, second));
    EXPECT_FALSE (intersectLineAndSphere ({ 1, 0, 0 }, { 1, 0, 0 }, {}, 2, first, second)) << "no line at all";
    EXPECT_FALSE (intersectLineAndSphere ({}, { 1e30f, 0, 0 }, {}, 2, first, second)) << "too far to be told";
    EXPECT_EQ (first, before);
}

TEST (SpeakerAlignment, MovesEverySpeakerOutToTheFarthest)
{
    const auto alignment = alignSpeakers ({ { 0, 2, 0 }, { 3.432f, 0, 0 }, { 0, 0, -1 }, {} });
    EXPECT_NEAR (alignment.radius, 3.432f, 1e-6f);
    EXPECT_THAT (alignment.points[0], isAbout ({ 0, 3.432f, 0 }));
    EXPECT_THAT (alignment.points[2], isAbout ({ 0, 0, -3.432f }));
    EXPECT_NEAR (alignment.delays[0], 1.432f * 1000 / 343.2f, 1e-4f);
    EXPECT_NEAR (alignment.delays[1], 0, 1e-4f);
    EXPECT_EQ (alignment.points[3], Point3()) << "the origin has no direction";
    EXPECT_EQ (alignment.delays[3], 0);

    const auto none = alignSpeakers ({});
    EXPECT_EQ (none.radius, 0);
    EXPECT_TRUE (none.points.empty() && none.delays.empty());
}

TEST (SpeakerAlignment, KeepsDirectionsAndMakesUpForTheWay)
{
    std::mt19937 random (5);
    std::uniform_real_distribution<float> coordinate (-5, 5);
    Point3Array speakers (200);
    for (auto& p : speakers)
        p = { coordinate (random), coordinate (random), coordinate (random) };
    const auto alignment = alignSpeakers (speakers);
    for (std::size_t i = 0; i < speakers.size(); ++i) {
        const float r = distance (speakers[i]);
        EXPECT_THAT (alignment.points[i], IsNear (speakers[i] * (alignment.radius / r), 1e-4f));
        EXPECT_NEAR (alignment.delays[i] * 0.3432f, alignment.radius - r, 1e-4f);
    }
}

TEST (SpeakerAlignment, StaysFiniteForExtremeSpeakers)
{
    constexpr float largest = std::numeric_limits<float>::max();
    const auto alignment = alignSpeakers ({ { largest, largest, 0 }, { 1e-40f, 0, 0 }, { 1e25f, 0, 0 }, { 1, 0, 0 } });
    for (std::size_t i = 0; i < alignment.points.size(); ++i) {
        EXPECT_TRUE (isFinite (alignment.points[i])) << i;
        EXPECT_TRUE (std::isfinite (alignment.delays[i])) << i;
    }
}
