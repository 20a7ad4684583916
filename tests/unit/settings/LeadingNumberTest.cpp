#include "settings/LeadingNumber.h"

#include <gtest/gtest.h>

#include <climits>

TEST(ParseLeadingNumber, TakesTheDigitsInFront)
{
    EXPECT_EQ(12, ParseLeadingNumber(L"12"));
    EXPECT_EQ(12, ParseLeadingNumber(L"12abc"));
    EXPECT_EQ(12, ParseLeadingNumber(L"0012.5"));
}

TEST(ParseLeadingNumber, PassesOverLeadingBlanks)
{
    EXPECT_EQ(7, ParseLeadingNumber(L" \t\r\n\v\f7"));
}

TEST(ParseLeadingNumber, TakesOneSign)
{
    EXPECT_EQ(-5, ParseLeadingNumber(L"-5"));
    EXPECT_EQ(5, ParseLeadingNumber(L" +5"));
    EXPECT_EQ(0, ParseLeadingNumber(L"--5"));
    EXPECT_EQ(0, ParseLeadingNumber(L"- 5"));
}

TEST(ParseLeadingNumber, IsZeroWithoutADigitInFront)
{
    for (const wchar_t* text : {L"", L" ", L"abc", L"x12", L"-", L"+"})
        EXPECT_EQ(0, ParseLeadingNumber(text)) << text;
}

TEST(ParseLeadingNumber, StopsAtDigitsOfOtherScripts)
{
    EXPECT_EQ(1, ParseLeadingNumber(L"1\x0662"));
    EXPECT_EQ(0, ParseLeadingNumber(L"\xFF11"));
}

TEST(ParseLeadingNumber, GivesTheNearestNumberOf32Bits)
{
    EXPECT_EQ(INT_MAX, ParseLeadingNumber(L"2147483647"));
    EXPECT_EQ(INT_MIN, ParseLeadingNumber(L"-2147483648"));
    EXPECT_EQ(INT_MAX, ParseLeadingNumber(L"2147483648"));
    EXPECT_EQ(INT_MIN, ParseLeadingNumber(L"-99999999999999999999999999"));
}
