#include "broker/WindowSize.h"

#include <gtest/gtest.h>

TEST(ParseWindowSize, TakesWidthAndHeight)
{
    EXPECT_EQ((WindowSize {800, 600}), ParseWindowSize(L"800x600"));
    EXPECT_EQ((WindowSize {1, 1}), ParseWindowSize(L"1x1"));
    EXPECT_EQ((WindowSize {32767, 32767}), ParseWindowSize(L"32767x32767"));
}

TEST(ParseWindowSize, RefusesWhatNoScreenCanHold)
{
    for (const wchar_t* text : {L"0x600", L"800x0", L"32768x600", L"800x32768", L"99999999999x1", L"4294967297x1"})
        EXPECT_FALSE(ParseWindowSize(text)) << testing::PrintToString(text);
}

TEST(ParseWindowSize, RefusesEveryOtherForm)
{
    for (const wchar_t* text : {L"", L"x", L"800", L"800x", L"x600", L"-800x600", L"+800x600", L" 800x600", L"800x600 ",
                                L"800 x 600", L"800X600", L"800x600x1", L"800.5x600", L"0x320x0x258", L"\xFF18x1"})
        EXPECT_FALSE(ParseWindowSize(text)) << testing::PrintToString(text);
}

TEST(ParseWindowNumber, TakesADecimalNumberOf32Bits)
{
    EXPECT_EQ(65552, ParseWindowNumber(L"65552"));
    EXPECT_EQ(0, ParseWindowNumber(L"0"));
    EXPECT_EQ(2147483647, ParseWindowNumber(L"2147483647"));
    EXPECT_EQ(-1, ParseWindowNumber(L"-1"));
    EXPECT_EQ(-2147483647 - 1, ParseWindowNumber(L"-2147483648"));
}

TEST(ParseWindowNumber, RefusesEveryOtherText)
{
    for (const wchar_t* text : {L"", L"-", L"+1", L" 1", L"1 ", L"0x10010", L"1a", L"--1", L"2147483648",
                                L"-2147483649", L"99999999999999999999"})
        EXPECT_FALSE(ParseWindowNumber(text)) << testing::PrintToString(text);
}
