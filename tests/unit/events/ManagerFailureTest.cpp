// Every call that the manager makes to the browser can fail, or claim to succeed and give nothing.

#include "tests/fakes/BrowserEvent.h"
#include "tests/fakes/FakePage.h"
#include "tests/fakes/RecordingEvents.h"
#include "tests/unit/events/ObservedManager.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;
using testing::AnyOf;
using testing::ElementsAre;

namespace
{
/// A page with three frames, one of which has two of its own and an object that is no frame.
class FailingBrowser : public testing::TestWithParam<HRESULT>
{
protected:
    FailingBrowser()
    {
        for (int n = 0; n < 3; ++n)
            m_frames.push_back(&m_page.AddFrame(m_page.GetTop(), L"http://page.test/frame"));
        CFakePage::AddObject(*m_frames[1]);
        for (int n = 0; n < 2; ++n)
            m_frames.push_back(&m_page.AddFrame(*m_frames[1], L"http://page.test/inner"));
        m_manager.SetWebBrowser(&m_page.GetTop());
    }

    CFakePage::Send Sender()
    {
        return [this](CBrowserEvent& event) { event.SendTo(m_manager); };
    }

    void ExpectIdle()
    {
        EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
        EXPECT_EQ(nullptr, m_manager.m_spActiveFrame.Get());
    }

    CFakePage m_page;
    std::vector<CFakeWebBrowser2*> m_frames; ///< owned by the page
    CRecordingEvents m_events;
    CObservedManager m_manager {&m_events};
};

TEST_P(FailingBrowser, MakesASearchFindTheFrameOrNone)
{
    for (CFakeWebBrowser2* pTarget : m_frames)
        ForEachFailingCall(GetParam(), [&] {
            std::wstring strPath;
            ComPtr<IDispatch> spFound;
            const bool bFound = CTVXEventManager::FindLoadingFrame(pTarget->AsFrame(), L"1.", m_page.GetTop().AsFrame(),
                                                                   strPath, spFound);
            EXPECT_TRUE(bFound || CFakeCalls::Get().HasFailed());
            EXPECT_EQ(bFound ? pTarget->AsFrame() : nullptr, spFound.Get());
            EXPECT_EQ(bFound, !strPath.empty());
        });
}

TEST_P(FailingBrowser, TellsALoadWhollyOrNotAtAll)
{
    ForEachFailingCall(GetParam(), [&] {
        m_events.Clear();
        m_page.Load(Sender());
        EXPECT_THAT(m_events.GetNotifications(),
                    AnyOf(ElementsAre(), ElementsAre(ENotification::PageLoadBegin, ENotification::PageLoadComplete)));
        ExpectIdle();
        EXPECT_EQ(0, m_manager.m_nNavigations);
        EXPECT_EQ(0, m_manager.m_nDownloads);
    });
}

TEST_P(FailingBrowser, TellsTheLoadOfAFrameWhollyOrNotAtAll)
{
    ForEachFailingCall(GetParam(), [&] {
        m_events.Clear();
        m_page.LoadFrame(*m_frames[4], Sender());
        EXPECT_THAT(m_events.GetNotifications(),
                    AnyOf(ElementsAre(), ElementsAre(ENotification::FrameLoadBegin, ENotification::FrameLoadComplete)));
        ExpectIdle();
    });
}

TEST_P(FailingBrowser, TellsTheRefreshOfAFrameWhollyOrNotAtAll)
{
    ForEachFailingCall(GetParam(), [&] {
        m_events.Clear();
        CFakePage::Refresh(*m_frames[2], Sender());
        EXPECT_THAT(
            m_events.GetNotifications(),
            AnyOf(ElementsAre(), ElementsAre(ENotification::FrameRefreshBegin, ENotification::FrameRefreshComplete)));
        ExpectIdle();
    });
}

TEST_P(FailingBrowser, StillTellsTheEndOfALoadThatTurnsIntoADownload)
{
    ForEachFailingCall(GetParam(), [&] {
        m_events.Clear();
        CBrowserEvent::BeforeNavigate2(m_page.GetTop().AsFrame(), L"http://page.test/file").SendTo(m_manager);
        CBrowserEvent::FileDownload().SendTo(m_manager);
        EXPECT_THAT(m_events.GetNotifications(),
                    AnyOf(ElementsAre(), ElementsAre(ENotification::PageLoadBegin, ENotification::PageLoadComplete)));
        CBrowserEvent::DocumentComplete(m_page.GetTop().AsFrame(), L"").SendTo(m_manager);
        ExpectIdle();
    });
}

INSTANTIATE_TEST_SUITE_P(Results, FailingBrowser,
                         testing::Values(E_FAIL, E_ACCESSDENIED, E_OUTOFMEMORY, RPC_E_DISCONNECTED, S_OK));

TEST(DeniedFrame, IsSteppedOver)
{
    CFakePage page;
    CFakeWebBrowser2& denied = page.AddFrame(page.GetTop(), L"http://other.test/");
    page.AddFrame(denied, L"http://other.test/inner");
    CFakeWebBrowser2& target = page.AddFrame(page.GetTop(), L"http://page.test/frame");
    denied.m_hrDocument = E_ACCESSDENIED;
    std::wstring strPath;
    ComPtr<IDispatch> spFound;
    EXPECT_TRUE(CTVXEventManager::FindLoadingFrame(target.AsFrame(), L"1.", page.GetTop().AsFrame(), strPath, spFound));
    EXPECT_EQ(L"1.2.", strPath);
}

TEST(TargetFrame, IsTheSameObjectOrOneThatLoads)
{
    CFakePage page;
    CFakeWebBrowser2& top = page.GetTop();
    CFakeWebBrowser2& frame = page.AddFrame(top, L"");
    EXPECT_TRUE(CTVXEventManager::IsTargetFrame(nullptr, nullptr));
    EXPECT_TRUE(CTVXEventManager::IsTargetFrame(top.AsFrame(), top.AsFrame()));
    EXPECT_FALSE(CTVXEventManager::IsTargetFrame(top.AsFrame(), frame.AsFrame()));
    EXPECT_FALSE(CTVXEventManager::IsTargetFrame(top.AsFrame(), nullptr));
    for (const READYSTATE eState :
         {READYSTATE_UNINITIALIZED, READYSTATE_LOADING, READYSTATE_LOADED, READYSTATE_INTERACTIVE})
    {
        frame.m_eReadyState = eState;
        EXPECT_TRUE(CTVXEventManager::IsTargetFrame(top.AsFrame(), frame.AsFrame())) << eState;
        EXPECT_TRUE(CTVXEventManager::IsTargetFrame(nullptr, frame.AsFrame())) << eState;
    }
    CFakeCalls::Get().FailAll("WebBrowser.get_ReadyState", E_FAIL);
    EXPECT_FALSE(CTVXEventManager::IsTargetFrame(top.AsFrame(), frame.AsFrame()));
    frame.Lack(IID_IWebBrowser2);
    EXPECT_FALSE(CTVXEventManager::IsTargetFrame(top.AsFrame(), frame.AsFrame()));
}
} // namespace
