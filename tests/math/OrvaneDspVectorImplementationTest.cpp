#include "math/OrvaneDspVectorImplementation.h"
#include "math/OrvaneDspVector.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

using namespace qel;
using testing::ElementsAre;

TEST (Ipps, FillsCopiesAndScalesTheGivenLengthAlone)
{
    Vector<float> v{ 1, 2, 3, 4 };
    ippsMulC_32f_I (0.5f, v.data(), 3);
    EXPECT_THAT (v, ElementsAre (0.5f, 1, 1.5f, 4));
    ippsSet_32f (9, v.data() + 1, 2);
    EXPECT_THAT (v, ElementsAre (0.5f, 9, 9, 4));
    ippsZero_32f (v.data(), 2);
    EXPECT_THAT (v, ElementsAre (0, 0, 9, 4));

    Vector<float> copy (4);
    ippsCopy_32f (v.data(), copy.data(), 3);
    EXPECT_THAT (copy, ElementsAre (0, 0, 9, 0));
    copyFloats (copy.data(), v.data() + 3, 1);
    EXPECT_THAT (copy, ElementsAre (4, 0, 9, 0));
    ippsSet_32f (1, v.data(), 0);
    EXPECT_EQ (v[0], 0);
}

TEST (Ipps, ZeroesWhateverTheArrayHolds)
{
    Vector<float> v{ std::nanf (""), std::numeric_limits<float>::infinity(), -1 };
    ippsMulC_32f_I (1, v.data(), 3);
    EXPECT_TRUE (std::isnan (v[0]));
    ippsMulC_32f_I (0, v.data(), 3);
    EXPECT_THAT (v, ElementsAre (0, 0, 0));
}

TEST (Ipps, SumsAccuratelyIfAskedTo)
{
    Vector<float> v (10'000);
    ippsSet_32f (0.1f, v.data(), v.size());
    float accurate = -1, plain = -1, none = -1;
    ippsSum_32f (v.data(), v.size(), &accurate, IppHint::accurate);
    ippsSum_32f (v.data(), v.size(), &plain, IppHint::fast);
    ippsSum_32f (v.data(), 0, &none, IppHint::accurate);
    EXPECT_EQ (accurate, 1000.0f);
    EXPECT_NEAR (plain, 1000.0f, 1.0f);
    EXPECT_NE (plain, accurate);
    EXPECT_EQ (none, 0);
}
