#include "bench/markup/MarkupList.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

TEST(MarkupList, WritesALineForEachOperation)
{
    CMarkupList list;
    EXPECT_TRUE(list.IsEmpty());
    list.Add("find", {1, 0, -2});
    list.Add("drop", {1});
    EXPECT_EQ(list.GetLines(), "find 1 0 -2\ndrop 1");
    EXPECT_FALSE(list.IsEmpty());
}

TEST(MarkupList, HoldsEachTextOnce)
{
    CMarkupList list;
    EXPECT_EQ(list.AddText(L"one"), 0);
    EXPECT_EQ(list.AddText(L""), 1);
    EXPECT_EQ(list.AddText(L"one"), 0);
    EXPECT_THAT(list.GetTexts(), ElementsAre(L"one", L""));
}

TEST(MarkupList, GetsFull)
{
    CMarkupList list;
    int nOperations = 0;
    for (; !list.IsFull() && nOperations < 100000; ++nOperations)
        list.Add("moveToPointer", {1, 2});
    EXPECT_GT(nOperations, 1000);
    EXPECT_LT(nOperations, 10000);
}
