#include "tests/unit/events/EventManagerFixture.h"

#include <windows.h>
#include <exdispid.h>

namespace
{
constexpr wchar_t PageUrl[] = L"http://page.test/";
constexpr wchar_t FrameUrl[] = L"http://page.test/frame";

using EventManager = CEventManagerTest;

TEST_F(EventManager, IsIdleAtFirst)
{
    EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
    EXPECT_EQ(0, m_manager.m_nNavigations);
    EXPECT_EQ(0, m_manager.m_nDownloads);
}

TEST_F(EventManager, TellsTheLoadOfAPage)
{
    m_events.ExpectPageLoadBegin(GetTop().AsFrame(), PageUrl);
    BeforeNavigate(GetTop(), PageUrl);
    EXPECT_EQ(CTVXEventManager::StatePageLoad, m_manager.GetState());
    EXPECT_EQ(GetTop().AsFrame(), m_manager.m_spActiveFrame.Get());

    m_events.ExpectPageLoadComplete(GetTop().AsFrame(), PageUrl);
    DocumentComplete(GetTop(), PageUrl);
    EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
    EXPECT_EQ(nullptr, m_manager.m_spActiveFrame.Get());
}

TEST_F(EventManager, TellsTheLoadOfAFrameWithItsPath)
{
    AddFrame(L"http://page.test/first");
    CFakeWebBrowser2& second = AddFrame(FrameUrl);

    m_events.ExpectFrameLoadBegin(second.AsFrame(), FrameUrl, L"1.2.");
    BeforeNavigate(second, FrameUrl);
    EXPECT_EQ(CTVXEventManager::StateFrameLoad, m_manager.GetState());

    m_events.ExpectFrameLoadComplete(second.AsFrame(), FrameUrl);
    DocumentComplete(second, FrameUrl);
    EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
}

TEST_F(EventManager, KeepsTheUrlOfANavigationWhoseFrameIsNotFound)
{
    const auto spStranger = MakeFake<CFakeWebBrowser2>();
    BeforeNavigate(*spStranger.Get(), FrameUrl);
    EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
    EXPECT_EQ(1, m_manager.m_nNavigations);
    EXPECT_EQ(FrameUrl, m_manager.m_strPendingUrl);
}

TEST_F(EventManager, TellsAPendingPageLoadAtTheFirstDownload)
{
    const auto spStranger = MakeFake<CFakeWebBrowser2>();
    BeforeNavigate(*spStranger.Get(), PageUrl);
    GetTop().m_eReadyState = READYSTATE_LOADING;

    m_events.ExpectPageLoadBegin(GetTop().AsFrame(), PageUrl);
    Send(CBrowserEvent::DownloadBegin());
    EXPECT_EQ(CTVXEventManager::StatePageLoad, m_manager.GetState());
    EXPECT_EQ(L"", m_manager.m_strPendingUrl);
}

TEST_F(EventManager, TellsAPendingFrameLoadAtTheFirstDownload)
{
    const auto spStranger = MakeFake<CFakeWebBrowser2>();
    CFakeWebBrowser2& frame = AddFrame(L"http://page.test/old");
    BeforeNavigate(*spStranger.Get(), FrameUrl);
    frame.m_eReadyState = READYSTATE_LOADING;

    m_events.ExpectFrameLoadBegin(frame.AsFrame(), FrameUrl, L"1.1.");
    Send(CBrowserEvent::DownloadBegin());
    EXPECT_EQ(CTVXEventManager::StateFrameLoad, m_manager.GetState());
    EXPECT_EQ(frame.AsFrame(), m_manager.m_spActiveFrame.Get());
}

TEST_F(EventManager, TellsNothingOfAPendingLoadThatIsNowhereToBeFound)
{
    const auto spStranger = MakeFake<CFakeWebBrowser2>();
    BeforeNavigate(*spStranger.Get(), PageUrl);
    Send(CBrowserEvent::DownloadBegin());
    DocumentComplete(*spStranger.Get(), PageUrl);
    EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
    EXPECT_EQ(0, m_manager.m_nNavigations);
}

TEST_F(EventManager, TellsTheRefreshOfAPage)
{
    GetTop().m_strUrl = PageUrl;
    GetTop().m_eReadyState = READYSTATE_LOADING;
    m_events.ExpectPageRefreshBegin(GetTop().AsFrame(), PageUrl);
    Send(CBrowserEvent::DownloadBegin());
    EXPECT_EQ(CTVXEventManager::StatePageRefresh, m_manager.GetState());

    m_events.ExpectPageRefreshComplete();
    Send(CBrowserEvent::DownloadComplete());
    EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
    EXPECT_EQ(nullptr, m_manager.m_spActiveFrame.Get());
}

TEST_F(EventManager, TellsTheRefreshOfAFrameAtItsLastDownload)
{
    AddFrame(L"http://page.test/first");
    CFakeWebBrowser2& second = AddFrame(FrameUrl);
    second.m_eReadyState = READYSTATE_INTERACTIVE;

    m_events.ExpectFrameRefreshBegin(second.AsFrame(), FrameUrl, L"1.2.");
    Send(CBrowserEvent::DownloadBegin());
    EXPECT_EQ(CTVXEventManager::StateFrameRefresh, m_manager.GetState());
    Send(CBrowserEvent::DownloadBegin());
    Send(CBrowserEvent::DownloadComplete());
    EXPECT_EQ(CTVXEventManager::StateFrameRefresh, m_manager.GetState());

    m_events.ExpectFrameRefreshComplete();
    Send(CBrowserEvent::DownloadComplete());
    EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
}

TEST_F(EventManager, TellsARefreshWithAnEmptyUrlWhenTheFrameHasNone)
{
    GetTop().m_eReadyState = READYSTATE_LOADING;
    CFakeCalls::Get().FailAll("WebBrowser.get_LocationURL", E_FAIL);
    m_events.ExpectPageRefreshBegin(GetTop().AsFrame(), L"");
    Send(CBrowserEvent::DownloadBegin());
}

TEST_F(EventManager, TellsNoEndOfARefreshThatADocumentCompletes)
{
    GetTop().m_strUrl = PageUrl;
    GetTop().m_eReadyState = READYSTATE_LOADING;
    m_events.ExpectPageRefreshBegin(GetTop().AsFrame(), PageUrl);
    Send(CBrowserEvent::DownloadBegin());
    DocumentComplete(GetTop(), PageUrl);
    EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
    EXPECT_EQ(0, m_manager.m_nDownloads);
}

TEST_F(EventManager, TellsAPageWithThreeFramesOnce)
{
    for (const wchar_t* pszUrl : {L"http://page.test/1", L"http://page.test/2", L"http://page.test/3"})
        AddFrame(pszUrl);
    int nMostNavigations = 0;
    m_events.ExpectPageLoad(GetTop().AsFrame(), PageUrl);
    m_page.Load([&](CBrowserEvent& event) {
        event.SendTo(m_manager);
        nMostNavigations = std::max(nMostNavigations, m_manager.m_nNavigations);
    });
    EXPECT_EQ(2, nMostNavigations) << "the frames of this page load one after the other";
    EXPECT_EQ(0, m_manager.m_nNavigations);
}

TEST_F(EventManager, CountsTheFramesOfAPageThatLoadAtOnce)
{
    m_events.ExpectPageLoad(GetTop().AsFrame(), PageUrl);
    BeforeNavigate(GetTop(), PageUrl);
    GetTop().m_eReadyState = READYSTATE_LOADING;
    std::vector<CFakeWebBrowser2*> frames;
    for (int n = 0; n < 3; ++n)
    {
        frames.push_back(&AddFrame(FrameUrl));
        BeforeNavigate(*frames.back(), FrameUrl);
    }
    EXPECT_EQ(4, m_manager.m_nNavigations);
    for (CFakeWebBrowser2* pFrame : frames)
        DocumentComplete(*pFrame, FrameUrl);
    EXPECT_EQ(1, m_manager.m_nNavigations);
    DocumentComplete(GetTop(), PageUrl);
    EXPECT_EQ(0, m_manager.m_nNavigations);
}

TEST_F(EventManager, ResetsTheCountersWhenTheTopLevelPageIsComplete)
{
    CFakeWebBrowser2& frame = AddFrame(FrameUrl);
    m_events.ExpectPageLoad(GetTop().AsFrame(), PageUrl);
    BeforeNavigate(GetTop(), PageUrl);
    Send(CBrowserEvent::DownloadBegin());
    BeforeNavigate(frame, FrameUrl);
    DocumentComplete(GetTop(), PageUrl);
    EXPECT_EQ(0, m_manager.m_nNavigations);
    EXPECT_EQ(0, m_manager.m_nDownloads);

    DocumentComplete(frame, FrameUrl);
    EXPECT_EQ(0, m_manager.m_nNavigations);
    EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
}

TEST_F(EventManager, EndsAFrameLoadWithTheCompletePage)
{
    CFakeWebBrowser2& first = AddFrame(FrameUrl);
    CFakeWebBrowser2& second = AddFrame(L"http://page.test/second");
    m_events.ExpectFrameLoadBegin(first.AsFrame(), FrameUrl, L"1.1.");
    BeforeNavigate(first, FrameUrl);
    BeforeNavigate(second, L"http://page.test/second");
    m_events.ExpectFrameLoadComplete(GetTop().AsFrame(), PageUrl);
    DocumentComplete(GetTop(), PageUrl);
    EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
    EXPECT_EQ(0, m_manager.m_nNavigations);
    EXPECT_EQ(0, m_manager.m_nDownloads);
}

TEST_F(EventManager, CountsANavigationThatIsToldTwiceOnce)
{
    m_events.ExpectPageLoad(GetTop().AsFrame(), PageUrl);
    BeforeNavigate(GetTop(), PageUrl);
    BeforeNavigate(GetTop(), PageUrl);
    EXPECT_EQ(1, m_manager.m_nNavigations);
    DocumentComplete(GetTop(), PageUrl);
}

TEST_F(EventManager, LeavesTheNavigationsAtZeroWhenADocumentCompletesUnexpectedly)
{
    CFakeWebBrowser2& frame = AddFrame(FrameUrl);
    DocumentComplete(frame, FrameUrl);
    EXPECT_EQ(0, m_manager.m_nNavigations);
}

TEST_F(EventManager, LeavesTheDownloadsAtZeroWhenOneEndsUnexpectedly)
{
    Send(CBrowserEvent::DownloadComplete());
    EXPECT_EQ(0, m_manager.m_nDownloads);
}

TEST_F(EventManager, FindsALoadingFrameBeforeTheTarget)
{
    CFakeWebBrowser2& loading = AddFrame(L"http://page.test/loading");
    loading.m_eReadyState = READYSTATE_LOADED;
    CFakeWebBrowser2& target = AddFrame(FrameUrl);
    m_events.ExpectFrameLoadBegin(target.AsFrame(), FrameUrl, L"1.1.");
    BeforeNavigate(target, FrameUrl);
    EXPECT_EQ(target.AsFrame(), m_manager.m_spActiveFrame.Get()) << "the frame of the event, not the one found";
}

TEST_F(EventManager, NumbersOnlyEmbeddedObjectsThatAreBrowsers)
{
    CFakePage::AddObject(GetTop());
    CFakeWebBrowser2& first = AddFrame(L"http://page.test/first");
    CFakePage::AddObject(first);
    CFakeWebBrowser2& inner = m_page.AddFrame(first, FrameUrl);
    m_events.ExpectFrameLoadBegin(inner.AsFrame(), FrameUrl, L"1.1.1.");
    BeforeNavigate(inner, FrameUrl);
}

TEST_F(EventManager, FindsAFrameAtAnyDepth)
{
    CFakeWebBrowser2* pFrame = &GetTop();
    std::wstring strPath = L"1.";
    for (int nDepth = 0; nDepth < 200; ++nDepth)
    {
        pFrame = &m_page.AddFrame(*pFrame, FrameUrl);
        strPath += L"1.";
    }
    m_events.ExpectFrameLoadBegin(pFrame->AsFrame(), FrameUrl, strPath);
    BeforeNavigate(*pFrame, FrameUrl);
}

TEST_F(EventManager, KeepsBeginAndEndPairedWhenANavigationIsCancelled)
{
    m_events.ExpectPageLoad(GetTop().AsFrame(), PageUrl);
    BeforeNavigate(GetTop(), PageUrl);
    // Cancelled: no DocumentComplete follows. The next navigation is taken for the same one.
    BeforeNavigate(GetTop(), L"http://other.test/");
    EXPECT_EQ(1, m_manager.m_nNavigations);
    DocumentComplete(GetTop(), PageUrl);
    EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
}

TEST_F(EventManager, DoesNothingWithoutArgumentsBrowserOrSink)
{
    m_manager.Invoke(DISPID_DOWNLOADBEGIN, IID_NULL, 0, 0, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(0, m_manager.m_nDownloads);

    CObservedManager withoutSink(nullptr);
    withoutSink.SetWebBrowser(&GetTop());
    CBrowserEvent::DownloadBegin().SendTo(withoutSink);
    EXPECT_EQ(0, withoutSink.m_nDownloads);

    CObservedManager withoutBrowser(&m_events);
    CBrowserEvent::DownloadBegin().SendTo(withoutBrowser);
    EXPECT_EQ(0, withoutBrowser.m_nDownloads);
}

TEST_F(EventManager, IgnoresOtherEvents)
{
    Send(CBrowserEvent::NavigateComplete2(GetTop().AsFrame(), PageUrl));
    Send(CBrowserEvent::StatusTextChange(L"Done"));
    Send(CBrowserEvent::OnQuit());
    EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
    EXPECT_EQ(0u, CFakeCalls::Get().GetCount());
}

TEST_F(EventManager, HoldsNoFrameAfterTheEnd)
{
    CFakeWebBrowser2& frame = AddFrame(FrameUrl);
    const ULONG nReferences = frame.GetReferences();
    m_events.ExpectFrameLoad(frame.AsFrame(), FrameUrl, L"1.1.");
    m_page.LoadFrame(frame, [&](CBrowserEvent& event) { event.SendTo(m_manager); });
    EXPECT_EQ(nReferences, frame.GetReferences());
}
} // namespace
