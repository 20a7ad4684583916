// The browser re-enters while a notification or a message box is open.

#include "tests/fakes/MessageBoxAnswerer.h"
#include "tests/fakes/RecordingEvents.h"
#include "tests/unit/events/ObservedManager.h"
#include "tests/unit/events/ToolbarOnPageFixture.h"

#include <functional>
#include <optional>

namespace
{
constexpr wchar_t PageUrl[] = L"http://page.test/";
constexpr wchar_t FrameUrl[] = L"http://page.test/frame";

/// An event that the browser fires at a bad time.
struct CNestedEvent
{
    const char* pszName;
    CBrowserEvent (*make)(CFakeWebBrowser2& top, CFakeWebBrowser2& frame);
};

const CNestedEvent nestedEvents[] = {
    {"BeforeNavigate2", [](auto& top, auto&) { return CBrowserEvent::BeforeNavigate2(top.AsFrame(), PageUrl); }},
    {"BeforeNavigate2OfFrame",
     [](auto&, auto& frame) { return CBrowserEvent::BeforeNavigate2(frame.AsFrame(), FrameUrl); }},
    {"NavigateComplete2", [](auto& top, auto&) { return CBrowserEvent::NavigateComplete2(top.AsFrame(), PageUrl); }},
    {"DocumentComplete", [](auto& top, auto&) { return CBrowserEvent::DocumentComplete(top.AsFrame(), PageUrl); }},
    {"DocumentCompleteOfFrame",
     [](auto&, auto& frame) { return CBrowserEvent::DocumentComplete(frame.AsFrame(), FrameUrl); }},
    {"DownloadBegin", [](auto&, auto&) { return CBrowserEvent::DownloadBegin(); }},
    {"DownloadComplete", [](auto&, auto&) { return CBrowserEvent::DownloadComplete(); }},
    {"FileDownload", [](auto&, auto&) { return CBrowserEvent::FileDownload(); }},
    {"PropertyChange", [](auto&, auto&) { return CBrowserEvent::PropertyChange(L"{name}"); }},
    {"OnQuit", [](auto&, auto&) { return CBrowserEvent::OnQuit(); }},
};

std::string ToText(const CNestedEvent& event)
{
    return event.pszName;
}

class ReEntrance : public testing::TestWithParam<std::tuple<ENotification, CNestedEvent>>
{
protected:
    ReEntrance() { m_manager.SetWebBrowser(&GetTop()); }

    CFakeWebBrowser2& GetTop() { return m_page.GetTop(); }
    CBrowserEvent MakeNestedEvent() { return std::get<1>(GetParam()).make(GetTop(), m_frame); }

    /// What the browser does for each notification to be told once.
    void LoadAndRefreshAll()
    {
        const CFakePage::Send send = [this](CBrowserEvent& event) {
            event.SendTo(m_manager);
            EXPECT_GE(m_manager.m_nNavigations, 0);
            EXPECT_GE(m_manager.m_nDownloads, 0);
        };
        m_page.Load(send);
        m_page.LoadFrame(m_frame, send);
        CFakePage::Refresh(GetTop(), send);
        CFakePage::Refresh(m_frame, send);
    }

    CFakePage m_page;
    CFakeWebBrowser2& m_frame = m_page.AddFrame(m_page.GetTop(), FrameUrl);
    CRecordingEvents m_events;
    CObservedManager m_manager {&m_events};
};

TEST_P(ReEntrance, LeavesTheManagerInOrder)
{
    const ENotification eNotification = std::get<0>(GetParam());
    int nNested = 0;
    m_events.SetAction([&](const CNotification& told) {
        if (told.eNotification != eNotification || nNested++ != 0)
            return;
        CBrowserEvent event = MakeNestedEvent();
        event.SendTo(m_manager);
        EXPECT_GE(m_manager.m_nNavigations, 0);
        EXPECT_GE(m_manager.m_nDownloads, 0);
    });
    LoadAndRefreshAll();
    EXPECT_GE(nNested, 1) << "the notification is told";

    // Whatever was left open ends with the page, and the next load is told as ever.
    CBrowserEvent::DocumentComplete(GetTop().AsFrame(), PageUrl).SendTo(m_manager);
    EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
    EXPECT_EQ(nullptr, m_manager.m_spActiveFrame.Get());
    m_events.Clear();
    m_page.Load([this](CBrowserEvent& event) { event.SendTo(m_manager); });
    EXPECT_EQ((std::vector {ENotification::PageLoadBegin, ENotification::PageLoadComplete}),
              m_events.GetNotifications());
}

INSTANTIATE_TEST_SUITE_P(All, ReEntrance,
                         testing::Combine(testing::ValuesIn(AllNotifications), testing::ValuesIn(nestedEvents)),
                         [](const auto& info) {
                             return GetName(std::get<0>(info.param)) + ToText(std::get<1>(info.param));
                         });

/// A manager that tells a sink which lets the browser re-enter once.
class NestedEvent : public testing::Test
{
protected:
    NestedEvent() { m_manager.SetWebBrowser(&m_page.GetTop()); }

    IDispatch* GetTop() { return m_page.GetTop().AsFrame(); }
    void Send(CBrowserEvent event) { event.SendTo(m_manager); }

    void NestOnce(ENotification eNotification, std::function<void()> nested)
    {
        m_events.SetAction([this, eNotification, nested](const CNotification& told) {
            if (told.eNotification != eNotification)
                return;
            m_events.SetAction(nullptr);
            nested();
        });
    }

    CFakePage m_page;
    CRecordingEvents m_events;
    CObservedManager m_manager {&m_events};
};

TEST_F(NestedEvent, SeesTheStateOfBeforeTheNotification)
{
    std::optional<CTVXEventManager::EState> eState;
    NestOnce(ENotification::PageLoadBegin, [&] { eState = m_manager.GetState(); });
    Send(CBrowserEvent::BeforeNavigate2(GetTop(), PageUrl));
    EXPECT_EQ(CTVXEventManager::StateIdle, eState);
    NestOnce(ENotification::PageLoadComplete, [&] { eState = m_manager.GetState(); });
    Send(CBrowserEvent::DocumentComplete(GetTop(), PageUrl));
    EXPECT_EQ(CTVXEventManager::StatePageLoad, eState);
}

TEST_F(NestedEvent, CompletesAPageWithoutNoticeBeforeItsBeginIsThrough)
{
    NestOnce(ENotification::PageLoadBegin, [&] { Send(CBrowserEvent::DocumentComplete(GetTop(), PageUrl)); });
    Send(CBrowserEvent::BeforeNavigate2(GetTop(), PageUrl));
    EXPECT_EQ(std::vector {ENotification::PageLoadBegin}, m_events.GetNotifications());
    EXPECT_EQ(CTVXEventManager::StatePageLoad, m_manager.GetState());
    EXPECT_EQ(0, m_manager.m_nNavigations);
}

TEST_F(NestedEvent, TellsAnEndTwiceThatComesAgainWithinItself)
{
    Send(CBrowserEvent::BeforeNavigate2(GetTop(), PageUrl));
    NestOnce(ENotification::PageLoadComplete, [&] { Send(CBrowserEvent::DocumentComplete(GetTop(), PageUrl)); });
    Send(CBrowserEvent::DocumentComplete(GetTop(), PageUrl));
    EXPECT_EQ(
        (std::vector {ENotification::PageLoadBegin, ENotification::PageLoadComplete, ENotification::PageLoadComplete}),
        m_events.GetNotifications());
    EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
}

TEST_F(NestedEvent, KeepsTheFrameOfAnEndThatAnotherEndsFirst)
{
    CFakeWebBrowser2& frame = m_page.AddFrame(m_page.GetTop(), FrameUrl);
    Send(CBrowserEvent::BeforeNavigate2(frame.AsFrame(), FrameUrl));
    NestOnce(ENotification::FrameLoadComplete, [&] { Send(CBrowserEvent::DocumentComplete(GetTop(), PageUrl)); });
    Send(CBrowserEvent::FileDownload());
    EXPECT_EQ(CTVXEventManager::StateIdle, m_manager.GetState());
    EXPECT_EQ(0, m_manager.m_nNavigations);
    EXPECT_EQ(nullptr, m_manager.m_spActiveFrame.Get());
}

TEST_F(NestedEvent, GivesAPendingLoadItsAddressAlthoughANotificationClearsIt)
{
    Send(CBrowserEvent::BeforeNavigate2(MakeFake<CFakeWebBrowser2>()->AsFrame(), FrameUrl));
    m_page.GetTop().m_eReadyState = READYSTATE_LOADING;
    std::wstring strSeen;
    m_events.SetAction([&](const CNotification& told) {
        m_events.SetAction(nullptr);
        Send(CBrowserEvent::DownloadComplete());
        Send(CBrowserEvent::DownloadBegin());
        strSeen = told.strUrl;
    });
    Send(CBrowserEvent::DownloadBegin());
    EXPECT_EQ(FrameUrl, strSeen);
    for (const CNotification& told : m_events.GetTold())
        EXPECT_EQ(FrameUrl, told.strUrl);
}

/// A box of a page's command, and the button that the user presses in it.
struct CCommandBox
{
    const char* pszName;
    const wchar_t* pszCommand;
    int nButton;
};

const CCommandBox commandBoxes[] = {
    {"AcceptedAfter", L"trelvix:searchweb?name=n&url=http://search.test/", IDOK},
    {"CancelledAfter", L"trelvix:searchweb?name=n&url=http://search.test/", IDCANCEL},
    {"RefusedAfter", L"trelvix:searchweb?name=n", IDOK},
};

/// The browser fires an event while a box of a page's command is open.
class EventInBox : public CToolbarOnPageTest, public testing::WithParamInterface<std::tuple<CCommandBox, CNestedEvent>>
{
};

TEST_P(EventInBox, LeavesTheToolbarInOrder)
{
    CFakeWebBrowser2& frame = m_page.AddFrame(GetTop(), FrameUrl);
    const auto& [box, nested] = GetParam();
    const CMessageBoxAnswerer answerer(box.nButton, [&] { Send(nested.make(GetTop(), frame)); });
    EXPECT_TRUE(Navigate(box.pszCommand));
    EXPECT_EQ(1u, answerer.GetShown().size());
    Send(CBrowserEvent::DocumentComplete(GetTop().AsFrame(), PageUrl));
    EXPECT_EQ(CTVXEventManager::StateIdle, m_pWindow->GetState());

    CFakeButtons::Get().TakeCalls();
    m_page.Load([this](CBrowserEvent& event) { Send(event); });
    const auto calls = CFakeButtons::Get().TakeCalls();
    EXPECT_EQ(1, std::count(calls.begin(), calls.end(), "0 OnPageLoadBegin http://page.test/"));
    EXPECT_EQ(1, std::count(calls.begin(), calls.end(), "0 OnPageLoadComplete http://page.test/"));
}

INSTANTIATE_TEST_SUITE_P(All, EventInBox,
                         testing::Combine(testing::ValuesIn(commandBoxes), testing::ValuesIn(nestedEvents)),
                         [](const auto& info) {
                             return std::get<0>(info.param).pszName + ToText(std::get<1>(info.param));
                         });

TEST_F(CToolbarOnPageTest, AsksASecondTimeInsideABoxAndStoresTheLastAnswer)
{
    int nBoxes = 0;
    const CMessageBoxAnswerer answerer(IDOK, [&] {
        if (++nBoxes == 1)
            Navigate(L"trelvix:searchweb?name=inner&url=http://inner.test/");
    });
    m_broker->m_writes.clear();
    EXPECT_TRUE(Navigate(L"trelvix:searchweb?name=outer&url=http://outer.test/"));
    EXPECT_EQ(2, nBoxes);
    ASSERT_GE(m_broker->m_writes.size(), 4u);
    EXPECT_EQ(L"inner", m_broker->m_writes[0].second);
    EXPECT_EQ(L"outer", m_broker->m_writes[2].second);
}
} // namespace
