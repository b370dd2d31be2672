#include "geometry/OrvaneDspLayouts.h"
#include "PointMatchers.h"
#include "geometry/OrvaneDspSpherical.h"

#include <vector>

using namespace qel;

TEST (RingLayout, RunsClockwiseFromTheFrontInEqualSteps)
{
    EXPECT_TRUE (ringLayout (0).empty());
    for (const std::size_t count : { 1u, 2u, 3u, 4u, 7u, 64u, 250u }) {
        const auto ring = ringLayout (count);
        ASSERT_EQ (ring.size(), count);
        for (std::size_t i = 0; i < count; ++i) {
            const float angle = static_cast<float> (i) * twoPi / static_cast<float> (count);
            EXPECT_THAT (ring[i], IsNear (Point3{ std::sin (angle), std::cos (angle), 0 }, 1e-5f)) << i << "/" << count;
            EXPECT_EQ (ring[i].z, 0);
        }
    }
}

TEST (SpeakerLayout, HasARowForUpToEightSpeakers)
{
    const std::vector<std::vector<float>> rows = {
        {},
        { 0 },
        { -30, 30 },
        { -30, 30, 180 },
        { -45, 45, 135, -135 },
        { -30, 0, 30, 110, -110 },
        { -45, 45, 90, 135, -135, -90 },
        { -30, 0, 30, 90, 150, -150, -90 },
        { -45, 0, 45, 90, 135, 180, -135, -90 },
    };
    for (std::size_t count = 0; count < rows.size(); ++count) {
        const auto layout = defaultSpeakerLayout (count);
        ASSERT_EQ (layout.size(), count);
        for (std::size_t i = 0; i < count; ++i)
            EXPECT_THAT (layout[i], isAbout (fromUserSpherical (rows[count][i], 0, 1))) << i << " of " << count;
    }
    EXPECT_EQ (defaultSpeakerLayout (9), ringLayout (9));
    EXPECT_EQ (defaultSpeakerLayout (100), ringLayout (100));
}

TEST (Layouts, AreCopiedAsTriples)
{
    std::vector<float> triples (7, -9);
    copyTriples ({ { 1, 2, 3 }, { 4, 5, 6 } }, triples.data());
    EXPECT_THAT (triples, testing::ElementsAre (1, 2, 3, 4, 5, 6, -9));
}
