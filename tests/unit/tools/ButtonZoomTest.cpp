#include "tools/ButtonZoom.h"

#include "band/ButtonIndex.h"
#include "band/TrelvixWindow.h"
#include "tests/fakes/BrowserEvent.h"
#include "tests/fakes/FakeDocument.h"
#include "tests/unit/tools/ZoomFixture.h"

#include <gmock/gmock.h>

#include <set>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
constexpr int Box = ZoomIndex;
constexpr wchar_t PageUrl[] = L"http://page.test/";

/// The box itself: what it shows and offers, and when it works.
class ZoomBox : public CToolbarTest
{
protected:
    std::vector<std::wstring> GetZooms() { return ::GetZooms(*m_spPage.Get()); }
    bool IsEnabled() { return IsWindowEnabled(GetBox(Box)) != FALSE; }

    void Fire(CBrowserEvent event) { m_spBrowser->Fire(event); }
    void BeginLoad() { Fire(CBrowserEvent::BeforeNavigate2(m_spBrowser->AsFrame(), PageUrl)); }
    void EndLoad() { Fire(CBrowserEvent::DocumentComplete(m_spBrowser->AsFrame(), PageUrl)); }
};
} // namespace

TEST_F(ZoomBox, OffersTwelveValuesAndShowsTheNormalOne)
{
    EXPECT_THAT(GetEntries(Box), ElementsAre(L"10%", L"30%", L"60%", L"80%", L"90%", L"100%", L"120%", L"150%", L"200%",
                                             L"300%", L"500%", L"800%"));
    EXPECT_EQ(L"100%", GetBoxText(Box));
    EXPECT_EQ(5, SendMessageW(GetBox(Box), CB_GETCURSEL, 0, 0));
}

TEST_F(ZoomBox, ShowsTheSameAfterItWasPlacedAgain)
{
    EXPECT_TRUE(GetItem(Box).Place());
    EXPECT_EQ(12u, GetEntries(Box).size());
    EXPECT_EQ(L"100%", GetBoxText(Box));
}

TEST_F(ZoomBox, IsANarrowBox)
{
    RECT rect = {};
    GetWindowRect(GetBox(Box), &rect);
    EXPECT_EQ(60, rect.right - rect.left);
}

TEST_F(ZoomBox, IsNoPlaceholderThatGoesWithTheFocus)
{
    GetItem(Box).TakeFocus();
    EXPECT_EQ(L"100%", GetBoxText(Box));
}

TEST_F(ZoomBox, CorrectsWhatIsTooSmallAndLeavesThePage)
{
    for (const wchar_t* pszText : {L"5", L"9", L"0", L"-50", L"big", L"%", L" ", L"9.99"})
    {
        ShowPage(L"text");
        Enter(Box, pszText);
        EXPECT_EQ(L"10%", GetBoxText(Box)) << pszText;
        EXPECT_THAT(GetZooms(), IsEmpty()) << pszText;
    }
}

TEST_F(ZoomBox, CorrectsWhatIsTooLargeAndLeavesThePage)
{
    for (const wchar_t* pszText : {L"1000", L"1000%", L"99999999999999999999"})
    {
        ShowPage(L"text");
        Enter(Box, pszText);
        EXPECT_EQ(L"999%", GetBoxText(Box)) << pszText;
        EXPECT_THAT(GetZooms(), IsEmpty()) << pszText;
    }
}

TEST_F(ZoomBox, AppliesTheCorrectedValueOnTheNextEnter)
{
    ShowPage(L"text");
    Enter(Box, L"5");
    PressKey(Box, VK_RETURN);
    EXPECT_THAT(GetZooms(), ElementsAre(L"10%"));
}

TEST_F(ZoomBox, AppliesTheBounds)
{
    ShowPage(L"text");
    EXPECT_TRUE(GetItem(Box).Search(L"10"));
    EXPECT_THAT(GetZooms(), ElementsAre(L"10%"));
    EXPECT_TRUE(GetItem(Box).Search(L"999"));
    EXPECT_THAT(GetZooms(), ElementsAre(L"999%"));
}

TEST_F(ZoomBox, KeepsTheTextAsTyped)
{
    ShowPage(L"text");
    Enter(Box, L"  150 per cent");
    EXPECT_THAT(GetZooms(), ElementsAre(L"150%"));
    EXPECT_EQ(L"  150 per cent", GetBoxText(Box));
    EXPECT_EQ(12u, GetEntries(Box).size());
}

TEST_F(ZoomBox, DoesNothingForAnEmptyBox)
{
    ShowPage(L"text");
    Enter(Box, L"");
    EXPECT_FALSE(GetItem(Box).Search(L""));
    EXPECT_EQ(L"", GetBoxText(Box));
    EXPECT_THAT(GetZooms(), IsEmpty());
}

TEST_F(ZoomBox, AppliesASelectedValue)
{
    ShowPage(L"text");
    SendMessageW(GetBox(Box), CB_SETCURSEL, 7, 0);
    SendMessageW(GetBandWindow(), WM_COMMAND, MAKEWPARAM(Box, CBN_SELCHANGE), reinterpret_cast<LPARAM>(GetBox(Box)));
    EXPECT_THAT(GetZooms(), ElementsAre(L"150%"));
}

TEST_F(ZoomBox, FailsWithoutABrowser)
{
    GetToolbar().SetWebBrowser(nullptr);
    EXPECT_FALSE(GetItem(Box).Search(L"5"));
    EXPECT_EQ(L"100%", GetBoxText(Box));
    GetToolbar().SetWebBrowser(m_spBrowser.Get());
}

TEST_F(ZoomBox, RefusesWhileThePageLoads)
{
    ShowPage(L"text");
    BeginLoad();
    EXPECT_FALSE(IsEnabled());
    EXPECT_FALSE(GetItem(Box).Search(L"150"));
    EXPECT_FALSE(GetItem(Box).Search(L"5"));
    EXPECT_EQ(L"100%", GetBoxText(Box));
    EndLoad();
    EXPECT_TRUE(IsEnabled());
    EXPECT_TRUE(GetItem(Box).Search(L"150"));
}

TEST_F(ZoomBox, AppliesAnEntryThatIsClicked)
{
    ShowPage(L"text");
    ClickArrow(Box);
    ASSERT_TRUE(IsDropped(Box));
    ClickEntry(Box, 7);
    EXPECT_THAT(GetZooms(), ElementsAre(L"150%"));
    EXPECT_EQ(L"150%", GetBoxText(Box));
}

TEST_F(ZoomBox, ShowsItsLabelWhenItIsLeftEmpty)
{
    Type(Box, L"");
    SetFocus(m_frame);
    EXPECT_EQ(L"Zoom", GetBoxText(Box));
}

TEST_F(ZoomBox, RefusesInEveryStateButIdle)
{
    ShowPage(L"text");
    const auto spFrame = MakeFake<CFakeWebBrowser2>();
    const auto spFrames = MakeFake<CFakeDocument>(); // in which the toolbar finds out what loads
    spFrames->m_objects.push_back(spFrame->AsFrame());
    std::set<int> states;
    const auto fire = [&](CBrowserEvent event) {
        m_spBrowser->m_spDocument = static_cast<IHTMLDocument2*>(spFrames.Get());
        m_spBrowser->Fire(event);
        m_spBrowser->m_spDocument = static_cast<IHTMLDocument2*>(m_spPage.Get());
        states.insert(GetToolbar().GetState());
        if (GetToolbar().GetState() == CTVXEventManager::StateIdle)
            return;
        EXPECT_FALSE(GetItem(Box).Search(L"150"));
        EXPECT_FALSE(GetItem(Box).Search(L"5"));
        EXPECT_EQ(L"100%", GetBoxText(Box));
    };
    for (CFakeWebBrowser2* pBrowser : {m_spBrowser.Get(), spFrame.Get()})
    {
        fire(CBrowserEvent::BeforeNavigate2(pBrowser->AsFrame(), PageUrl));
        fire(CBrowserEvent::DocumentComplete(pBrowser->AsFrame(), PageUrl));
        pBrowser->m_eReadyState = READYSTATE_LOADING;
        fire(CBrowserEvent::DownloadBegin());
        pBrowser->m_eReadyState = READYSTATE_COMPLETE;
        fire(CBrowserEvent::DownloadComplete());
    }
    EXPECT_THAT(states, ElementsAre(+CTVXEventManager::StateIdle, +CTVXEventManager::StatePageLoad,
                                    +CTVXEventManager::StateFrameLoad, +CTVXEventManager::StatePageRefresh,
                                    +CTVXEventManager::StateFrameRefresh));
    EXPECT_THAT(GetZooms(), IsEmpty());
}

TEST_F(ZoomBox, ShowsTheNormalValueWhenAPageHasLoaded)
{
    Type(Box, L"150%");
    BeginLoad();
    EXPECT_EQ(L"150%", GetBoxText(Box));
    EndLoad();
    EXPECT_EQ(L"100%", GetBoxText(Box));
}

TEST_F(ZoomBox, FollowsTheEightNotifications)
{
    ITVXEvents& events = GetItem(Box);
    const auto expect = [&](bool bEnabled, const wchar_t* pszText, const char* pszEvent) {
        EXPECT_EQ(bEnabled, IsEnabled()) << pszEvent;
        EXPECT_EQ(pszText, GetBoxText(Box)) << pszEvent;
        SetWindowTextW(GetBox(Box), L"150%");
    };
    SetWindowTextW(GetBox(Box), L"150%");
    events.OnPageLoadBegin(nullptr, L"");
    expect(false, L"150%", "page load begin");
    events.OnPageLoadComplete(nullptr, L"");
    expect(true, L"100%", "page load complete");
    events.OnFrameLoadBegin(nullptr, L"", L"1.1.");
    expect(false, L"150%", "frame load begin");
    events.OnFrameLoadComplete(nullptr, L"");
    expect(true, L"150%", "frame load complete");
    events.OnPageRefreshBegin(nullptr, L"");
    expect(false, L"150%", "page refresh begin");
    events.OnPageRefreshComplete();
    expect(true, L"100%", "page refresh complete");
    events.OnFrameRefreshBegin(nullptr, L"", L"1.1.");
    expect(false, L"150%", "frame refresh begin");
    events.OnFrameRefreshComplete();
    expect(true, L"150%", "frame refresh complete");
}

TEST(ZoomItem, FailsWithoutAToolbar)
{
    CButtonZoom item;
    EXPECT_TRUE(item.Initialize(nullptr));
    EXPECT_EQ(ZoomIndex, item.GetButtonId());
    EXPECT_FALSE(item.Search(L"150"));
    item.OnPageLoadBegin(nullptr, L"");
    item.OnPageLoadComplete(nullptr, L"");
}
