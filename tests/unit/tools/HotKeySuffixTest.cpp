#include "tools/HotKeySuffix.h"

#include <gtest/gtest.h>

TEST(GetHotKeySuffix, NamesModifierAndKey)
{
    EXPECT_EQ(L" (Alt+Q)", GetHotKeySuffix(L"AQ"));
    EXPECT_EQ(L" (Ctrl+Q)", GetHotKeySuffix(L"CQ"));
}

TEST(GetHotKeySuffix, TakesEveryModifierButCapitalCForAlt)
{
    EXPECT_EQ(L" (Alt+R)", GetHotKeySuffix(L"XR"));
    EXPECT_EQ(L" (Alt+R)", GetHotKeySuffix(L"cR"));
    EXPECT_EQ(L" (Alt+ )", GetHotKeySuffix(L"  "));
}

TEST(GetHotKeySuffix, IsEmptyForAnotherLength)
{
    EXPECT_EQ(L"", GetHotKeySuffix(L""));
    EXPECT_EQ(L"", GetHotKeySuffix(L"C"));
    EXPECT_EQ(L"", GetHotKeySuffix(L"CQQ"));
}
