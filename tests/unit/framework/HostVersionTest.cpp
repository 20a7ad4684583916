#include "framework/HostVersion.h"

#include <gtest/gtest.h>

TEST(VersionNumber, PutsTheMinorNumberBehindThePoint)
{
    EXPECT_DOUBLE_EQ(8.0, MakeVersionNumber(8, 0));
    EXPECT_DOUBLE_EQ(7.5, MakeVersionNumber(7, 5));
    EXPECT_DOUBLE_EQ(11.9, MakeVersionNumber(11, 9));
}

TEST(VersionNumber, DividesTheMinorNumberUntilItIsBelowOne)
{
    EXPECT_DOUBLE_EQ(9.1, MakeVersionNumber(9, 10));
    EXPECT_DOUBLE_EQ(6.29, MakeVersionNumber(6, 29));
    EXPECT_DOUBLE_EQ(6.1, MakeVersionNumber(6, 1000));
    EXPECT_DOUBLE_EQ(0.65535, MakeVersionNumber(0, 65535));
}

TEST(HostVersion, IsZeroForAHostWithoutAVersionBlock)
{
    EXPECT_EQ(0.0, GetIEVersion()) << "this program has none";
    EXPECT_FALSE(IsIE7OrLater());
    EXPECT_FALSE(IsIE8OrLater());
}
