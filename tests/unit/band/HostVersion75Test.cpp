#include "framework/HostVersion.h"

#include <gtest/gtest.h>

TEST(HostVersion, HasTheMinorNumberBehindThePoint)
{
    EXPECT_DOUBLE_EQ(7.5, GetIEVersion());
    EXPECT_TRUE(IsIE7OrLater());
    EXPECT_FALSE(IsIE8OrLater());
}
