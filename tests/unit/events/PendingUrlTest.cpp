// The address of a navigation whose frame was not found is forgotten with the next notification, whichever it is.

#include "tests/fakes/BrowserEvent.h"
#include "tests/fakes/FakePage.h"
#include "tests/fakes/RecordingEvents.h"
#include "tests/unit/events/ObservedManager.h"

#include <gtest/gtest.h>

namespace
{
class PendingUrl : public testing::TestWithParam<ENotification>
{
protected:
    PendingUrl() { m_manager.SetWebBrowser(&m_page.GetTop()); }

    CFakePage m_page;
    CFakeWebBrowser2& m_frame = m_page.AddFrame(m_page.GetTop(), L"http://page.test/frame");
    CRecordingEvents m_events;
    CObservedManager m_manager {&m_events};
};

TEST_P(PendingUrl, IsForgottenAfterANotification)
{
    bool bTold = false;
    m_events.SetAction([&](const CNotification& told) {
        if (told.eNotification != GetParam())
            return;
        bTold = true;
        m_manager.m_strPendingUrl = L"http://pending.test/";
    });
    const CFakePage::Send send = [&](CBrowserEvent& event) {
        event.SendTo(m_manager);
        EXPECT_EQ(L"", m_manager.m_strPendingUrl);
    };
    m_page.Load(send);
    m_page.LoadFrame(m_frame, send);
    CFakePage::Refresh(m_page.GetTop(), send);
    CFakePage::Refresh(m_frame, send);
    EXPECT_TRUE(bTold);
}

INSTANTIATE_TEST_SUITE_P(All, PendingUrl, testing::ValuesIn(AllNotifications),
                         [](const auto& info) { return GetName(info.param); });
} // namespace
