// What the window does with an event besides its notifications.

#include "tests/unit/events/ToolbarOnPageFixture.h"

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace
{
class UncountedNavigation : public CToolbarOnPageTest, public testing::WithParamInterface<const wchar_t*>
{
};

TEST_P(UncountedNavigation, ReachesTheItemsRawAndNotAsANotification)
{
    EXPECT_FALSE(Navigate(GetParam()));
    const auto calls = CFakeButtons::Get().TakeCalls();
    EXPECT_THAT(calls, Contains("0 OnBrowserEvent 250"));
    EXPECT_THAT(calls, Not(Contains(HasSubstr("Load"))));
    EXPECT_EQ(CTVXEventManager::StateIdle, m_pWindow->GetState());
}

INSTANTIATE_TEST_SUITE_P(FireInvoke, UncountedNavigation,
                         testing::Values(L"javascript:void(0)", L"JAVASCRIPT:f()", L"vbscript:f", L"view-source:u"));

TEST_F(CToolbarOnPageTest, ActsOnAPagesCommandAfterItsNotifications)
{
    Navigate(L"trelvix:newieinstance?http://page.test/");
    const auto calls = CFakeButtons::Get().TakeCalls();
    ASSERT_FALSE(calls.empty());
    EXPECT_EQ("0 OnPageLoadBegin trelvix:newieinstance?http://page.test/", calls.front());
    EXPECT_THAT(calls, Contains("0 OnBrowserEvent 250"));
}

TEST_F(CToolbarOnPageTest, TellsTheItemsOfARefreshOfAFrame)
{
    CFakeWebBrowser2& frame = m_page.AddFrame(GetTop(), L"http://page.test/frame");
    CFakePage::Refresh(frame, [this](CBrowserEvent& event) { Send(event); });
    const auto calls = CFakeButtons::Get().TakeCalls();
    EXPECT_EQ("0 OnFrameRefreshBegin http://page.test/frame 1.1.", calls.front());
    EXPECT_THAT(calls, Contains("0 OnFrameRefreshComplete"));
}
} // namespace
