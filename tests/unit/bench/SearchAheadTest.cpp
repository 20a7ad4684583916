#include "bench/markup/SearchAhead.h"

#include <gtest/gtest.h>

namespace
{
constexpr int Start = 1;
constexpr int End = 2;
constexpr int Other = 3;
} // namespace

class SearchAhead : public testing::Test
{
protected:
    SearchAhead() { m_search.OnFound(L"word", Start, End, 2); }

    std::optional<bool> MoveBehindAndTakeNext()
    {
        m_search.OnMoved(Start, End);
        return m_search.TakeNext(L"word", Start, End);
    }

    CSearchAhead m_search;
};

TEST_F(SearchAhead, KnowsEachFurtherHitAndTheEnd)
{
    EXPECT_EQ(MoveBehindAndTakeNext(), true);
    EXPECT_EQ(MoveBehindAndTakeNext(), true);
    EXPECT_EQ(MoveBehindAndTakeNext(), false);
    EXPECT_EQ(m_search.TakeNext(L"word", Start, End), false);
}

TEST_F(SearchAhead, KnowsNothingAtFirst)
{
    CSearchAhead search;
    EXPECT_FALSE(search.IsHit(0, 0));
    EXPECT_EQ(search.TakeNext(L"", 0, 0), std::nullopt);
}

TEST_F(SearchAhead, KnowsTheHitUntilThePointersLeaveIt)
{
    EXPECT_TRUE(m_search.IsHit(Start, End));
    EXPECT_FALSE(m_search.IsHit(End, Start));
    EXPECT_FALSE(m_search.IsHit(Start, Other));
    m_search.OnMoved(Other, Start);
    EXPECT_TRUE(m_search.IsHit(Start, End));
    m_search.OnMoved(Start, End);
    EXPECT_FALSE(m_search.IsHit(Start, End));
}

TEST_F(SearchAhead, KnowsNothingWhenTheSearchBeginsAtTheHitAgain)
{
    EXPECT_EQ(m_search.TakeNext(L"word", Start, End), std::nullopt);
}

TEST_F(SearchAhead, KnowsNothingOfAnotherTextOrOtherPointers)
{
    m_search.OnMoved(Start, End);
    EXPECT_EQ(m_search.TakeNext(L"Word", Start, End), std::nullopt);
    EXPECT_EQ(m_search.TakeNext(L"word", Start, Other), std::nullopt);
    EXPECT_EQ(m_search.TakeNext(L"word", Start, End), true);
}

TEST_F(SearchAhead, KnowsNothingOnceAPointerHasGoneElsewhere)
{
    m_search.OnMoved(End, Other);
    EXPECT_EQ(MoveBehindAndTakeNext(), std::nullopt);
}

TEST_F(SearchAhead, KnowsNothingOnceTheOtherPointerHasMovedBack)
{
    m_search.OnMoved(End, Start);
    EXPECT_EQ(MoveBehindAndTakeNext(), std::nullopt);
}

TEST_F(SearchAhead, ForgetsWhenTold)
{
    m_search.OnMoved(Start, End);
    m_search.Forget();
    EXPECT_EQ(m_search.TakeNext(L"word", Start, End), std::nullopt);
}
