// A navigation that the user answers with a file reaches no document.

#include "tests/unit/events/EventManagerFixture.h"

namespace
{
constexpr wchar_t PageUrl[] = L"http://page.test/";
constexpr wchar_t FrameUrl[] = L"http://page.test/frame";

using EventManager = CEventManagerTest;

TEST_F(EventManager, TellsTheEndOfAPageThatTurnsIntoADownload)
{
    GetTop().m_strUrl = L"http://page.test/before";
    m_events.ExpectPageLoadBegin(GetTop().AsFrame(), PageUrl);
    m_events.ExpectPageLoadComplete(GetTop().AsFrame(), L"http://page.test/before");
    BeforeNavigate(GetTop(), PageUrl);
    Send(CBrowserEvent::FileDownload());
    EXPECT_EQ(0, m_manager.m_nNavigations);
    EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
    EXPECT_EQ(nullptr, m_manager.m_spActiveFrame.Get());
}

TEST_F(EventManager, TellsTheEndOfAFrameThatTurnsIntoADownload)
{
    CFakeWebBrowser2& frame = AddFrame(L"http://page.test/before");
    m_events.ExpectFrameLoadBegin(frame.AsFrame(), FrameUrl, L"1.1.");
    m_events.ExpectFrameLoadComplete(frame.AsFrame(), L"http://page.test/before");
    BeforeNavigate(frame, FrameUrl);
    Send(CBrowserEvent::FileDownload());
    EXPECT_EQ(0, m_manager.m_nNavigations);
    EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
}

TEST_F(EventManager, TellsTheEndOfAPageRefreshThatTurnsIntoADownload)
{
    m_events.ExpectPageRefresh(GetTop().AsFrame(), GetTop().m_strUrl);
    GetTop().m_eReadyState = READYSTATE_LOADING;
    Send(CBrowserEvent::DownloadBegin());
    BeforeNavigate(GetTop(), PageUrl);
    Send(CBrowserEvent::FileDownload());
    EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
    EXPECT_EQ(0, m_manager.m_nNavigations);
}

TEST_F(EventManager, TellsTheEndOfAFrameRefreshThatTurnsIntoADownload)
{
    CFakeWebBrowser2& frame = AddFrame(FrameUrl);
    m_events.ExpectFrameRefresh(frame.AsFrame(), FrameUrl, L"1.1.");
    frame.m_eReadyState = READYSTATE_LOADING;
    Send(CBrowserEvent::DownloadBegin());
    BeforeNavigate(frame, FrameUrl);
    Send(CBrowserEvent::FileDownload());
    EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
}

TEST_F(EventManager, IgnoresAFileDownloadWithoutABegin)
{
    const auto spStranger = MakeFake<CFakeWebBrowser2>();
    BeforeNavigate(*spStranger.Get(), FrameUrl);
    Send(CBrowserEvent::FileDownload());
    EXPECT_EQ(1, m_manager.m_nNavigations);
}

TEST_F(EventManager, IgnoresAFileDownloadWhileSeveralNavigationsRun)
{
    CFakeWebBrowser2& frame = AddFrame(FrameUrl);
    m_events.ExpectPageLoadBegin(GetTop().AsFrame(), PageUrl);
    BeforeNavigate(GetTop(), PageUrl);
    BeforeNavigate(frame, FrameUrl);
    Send(CBrowserEvent::FileDownload());
    EXPECT_EQ(2, m_manager.m_nNavigations);
    EXPECT_EQ(CTVXEventManager::StatePageLoad, m_manager.GetState());
}
} // namespace
