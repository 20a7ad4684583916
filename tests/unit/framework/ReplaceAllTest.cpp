#include "framework/ReplaceAll.h"

#include <gtest/gtest.h>

TEST(ReplaceAll, ReplacesEveryMarker)
{
    EXPECT_EQ(L"b-b-b", ReplaceAll(L"%%A%%-%%A%%-%%A%%", L"%%A%%", L"b"));
}

TEST(ReplaceAll, LeavesATextWithoutTheMarker)
{
    EXPECT_EQ(L"%%a%% %A%", ReplaceAll(L"%%a%% %A%", L"%%A%%", L"b"));
    EXPECT_EQ(L"", ReplaceAll(L"", L"%%A%%", L"b"));
}

TEST(ReplaceAll, TakesTheValueAsItStands)
{
    EXPECT_EQ(L"%%A%%", ReplaceAll(L"%%A%%", L"%%A%%", L"%%A%%"));
    EXPECT_EQ(L"%%A%%x%%A%%", ReplaceAll(L"%%A%%", L"%%A%%", L"%%A%%x%%A%%"));
}

TEST(ReplaceAll, CanTakeTheMarkerAway)
{
    EXPECT_EQ(L"ab", ReplaceAll(L"a%%A%%b", L"%%A%%", {}));
}

TEST(ReplaceAll, TakesOverlappingMarkersFromTheLeft)
{
    EXPECT_EQ(L"ba", ReplaceAll(L"aaa", L"aa", L"b"));
}
