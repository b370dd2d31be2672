#include "geometry/OrvaneDspPoint3.h"
#include "PointMatchers.h"

using namespace qel;
using testing::ElementsAre;

TEST (Rectangle, RunsFromTheLeftTopCornerAround)
{
    EXPECT_THAT (Point3Array::defaultRectangle(),
                 ElementsAre (Point3{ -1, 1, 0 }, Point3{ 2, 1, 0 }, Point3{ 2, -1, 0 }, Point3{ -1, -1, 0 }));

    const auto expected = Point3Array::rectangle ({ 0, 5, 0 }, { 4, 3, 0 });
    EXPECT_EQ (Point3Array::rectangle ({ 4, 3, 7 }, { 0, 5, 7 }), expected) << "corners exchanged, heights dropped";
    EXPECT_THAT (Point3Array::rectangle ({ 0, 3, 0 }, { 4, 5, 0 }).front(), Point3 (Point3{ 4, 5, 0 }))
        << "two corners of the other diagonal are only exchanged";
}

TEST (Barycentre, IsTheMeanOrTheNullPoint)
{
    EXPECT_EQ (barycentre ({}), Point3());
    EXPECT_EQ (barycentre ({ { 1, 2, 3 } }), (Point3{ 1, 2, 3 }));
    EXPECT_EQ (barycentre ({ { 1, 2, 3 }, { 3, -2, 1 }, { 2, 6, -1 } }), (Point3{ 2, 2, 1 }));
}

TEST (MaximumRadius, IsThatOfTheFarthestPoint)
{
    EXPECT_EQ (maximumRadius ({}), 0);
    EXPECT_EQ (maximumRadius ({ {}, { 0, 0, -3 }, { 2, 0, 0 } }), 3);
}
