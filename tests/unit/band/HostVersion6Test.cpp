#include "framework/HostVersion.h"

#include <gtest/gtest.h>

TEST(HostVersion, IsTheProductVersionOfTheProcessesMainFile)
{
    EXPECT_DOUBLE_EQ(6.0, GetIEVersion());
    EXPECT_FALSE(IsIE7OrLater());
    EXPECT_FALSE(IsIE8OrLater());
}
