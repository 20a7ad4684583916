#include "tools/ZoomPercent.h"

#include <gtest/gtest.h>

TEST(ParsePercent, ReadsTheNumberAtTheStart)
{
    EXPECT_EQ(150, ParsePercent(L"150"));
    EXPECT_EQ(150, ParsePercent(L"150%"));
    EXPECT_EQ(15, ParsePercent(L"15.9%"));
    EXPECT_EQ(12, ParsePercent(L"12 34"));
    EXPECT_EQ(10, ParsePercent(L"0010"));
}

TEST(ParsePercent, SkipsLeadingBlanks)
{
    EXPECT_EQ(80, ParsePercent(L" \t 80 %"));
}

TEST(ParsePercent, TakesASign)
{
    EXPECT_EQ(-50, ParsePercent(L"-50"));
    EXPECT_EQ(50, ParsePercent(L"+50"));
}

TEST(ParsePercent, IsZeroWithoutDigits)
{
    EXPECT_EQ(0, ParsePercent(L""));
    EXPECT_EQ(0, ParsePercent(L"   "));
    EXPECT_EQ(0, ParsePercent(L"%"));
    EXPECT_EQ(0, ParsePercent(L"big 150"));
}

TEST(ParsePercent, KeepsNumbersThatAreTooLargeLarge)
{
    EXPECT_GT(ParsePercent(L"99999999999999999999"), LargestZoom);
    EXPECT_LT(ParsePercent(L"-99999999999999999999"), SmallestZoom);
}

TEST(FormatPercent, ClosesTheNumberByThePercentSign)
{
    EXPECT_EQ(L"10%", FormatPercent(10));
    EXPECT_EQ(L"999%", FormatPercent(999));
}
