// Which addresses are navigations of a page, and which only look like it.

#include "tests/unit/events/EventManagerFixture.h"

namespace
{
class UncountedUrl : public CEventManagerTest, public testing::WithParamInterface<const wchar_t*>
{
};

TEST_P(UncountedUrl, ChangesNothing)
{
    BeforeNavigate(GetTop(), GetParam());
    EXPECT_EQ(0, m_manager.m_nNavigations);
    EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
}

INSTANTIATE_TEST_SUITE_P(EventManager, UncountedUrl,
                         testing::Values(L"javascript:void(0)", L"JavaScript:alert(1)", L"vbscript:MsgBox",
                                         L"VBSCRIPT:", L"view-source:http://page.test/", L"VIEW-SOUR",
                                         L"view-sourdough:1"));

class CountedUrl : public CEventManagerTest, public testing::WithParamInterface<const wchar_t*>
{
};

TEST_P(CountedUrl, BeginsALoad)
{
    m_events.ExpectPageLoadBegin(GetTop().AsFrame(), GetParam());
    BeforeNavigate(GetTop(), GetParam());
    EXPECT_EQ(1, m_manager.m_nNavigations);
}

INSTANTIATE_TEST_SUITE_P(EventManager, CountedUrl,
                         testing::Values(L"javascript", L" javascript:", L"vbscript", L"view-sou", L"about:blank", L"",
                                         L"trelvix:searchweb?name=x"));
} // namespace
