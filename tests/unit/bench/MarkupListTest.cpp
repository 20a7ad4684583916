#include "bench/markup/MarkupList.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

TEST(MarkupList, WritesALineForEachOperation)
{
    CMarkupList list;
    EXPECT_TRUE(list.IsEmpty());
    list.Add("find", {1, 0, -2});
    list.Add("drop", {1});
    EXPECT_EQ(list.WriteLines(), "find 1 0 -2\ndrop 1");
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

TEST(MarkupList, TellsARunOfOperationsForOneElementAfterTheOtherOnce)
{
    CMarkupList list;
    list.Add("pointer", {1});
    for (const int nElement : {-3, -4, -5})
    {
        list.Add("make", {nElement, 0, 1});
        list.Add("insert", {nElement, 1, 2});
    }
    list.Add("make", {-6, 0, 1});
    EXPECT_EQ(list.WriteLines(), "pointer 1\nmake -3 0 1\ninsert -3 1 2\nrepeat 2 2\nmake -6 0 1");
}

TEST(MarkupList, TellsTheSameOperationInARowOnce)
{
    CMarkupList list;
    for (int n = 0; n < 10; ++n)
        list.Add("drop", {1});
    EXPECT_EQ(list.WriteLines(), "drop 1\nrepeat 1 9");
}

TEST(MarkupList, WritesEachOperationThatIsNotForTheNextElement)
{
    CMarkupList list;
    for (const int nElement : {-1, -1, -3, 4, 5})
        list.Add("release", {nElement});
    EXPECT_EQ(list.WriteLines(), "release -1\nrelease -1\nrelease -3\nrelease 4\nrelease 5");
}

TEST(MarkupList, GetsFull)
{
    CMarkupList list;
    int nOperations = 0;
    for (; !list.IsFull() && nOperations < 1000000; ++nOperations)
        list.Add("moveToPointer", {1, 2});
    EXPECT_GT(nOperations, 1000);
    EXPECT_LT(nOperations, 100000);
}
