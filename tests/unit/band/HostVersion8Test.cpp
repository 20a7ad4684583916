#include "framework/HostVersion.h"

#include <gtest/gtest.h>

TEST(HostVersion, IsAtLeastTheOneThatItIs)
{
    EXPECT_DOUBLE_EQ(8.0, GetIEVersion());
    EXPECT_TRUE(IsIE7OrLater());
    EXPECT_TRUE(IsIE8OrLater());
}
