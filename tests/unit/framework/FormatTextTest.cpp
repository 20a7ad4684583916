#include "framework/FormatText.h"

#include <gtest/gtest.h>

TEST(FormatText, PutsTheArgumentsInTheirPlacesInOrder)
{
    EXPECT_EQ(L"one and two", FormatText(L"%s and %s", {L"one", L"two"}));
}

TEST(FormatText, LeavesAPlaceWithoutAnArgument)
{
    EXPECT_EQ(L"one and %s", FormatText(L"%s and %s", {L"one"}));
    EXPECT_EQ(L"%s", FormatText(L"%s", {}));
}

TEST(FormatText, LeavesOutAnArgumentWithoutAPlace)
{
    EXPECT_EQ(L"one", FormatText(L"%s", {L"one", L"two"}));
    EXPECT_EQ(L"", FormatText(L"", {L"one"}));
}

TEST(FormatText, TakesArgumentsAsTheyStand)
{
    EXPECT_EQ(L"100%s %% two", FormatText(L"%s %s", {L"100%s %%", L"two"}));
}

TEST(FormatText, MakesOnePercentSignOfTwo)
{
    EXPECT_EQ(L"100% sure", FormatText(L"100%% %s", {L"sure"}));
    EXPECT_EQ(L"%s", FormatText(L"%%s", {L"unused"}));
}

TEST(FormatText, KeepsEveryOtherMark)
{
    EXPECT_EQ(L"%d one %", FormatText(L"%d %s %", {L"one"}));
}
