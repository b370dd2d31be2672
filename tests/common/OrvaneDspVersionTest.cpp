#include "common/OrvaneDspVersion.h"

#include <gtest/gtest.h>

TEST (Version, HasAShortAndALongForm)
{
    EXPECT_EQ (qel::versionText (false), "libqel v5.0.0");
    EXPECT_EQ (qel::versionText (true), "libqel v5.0.0 (32-bit float)");
}
