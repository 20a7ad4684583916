#include "band/ButtonIndex.h"
#include "band/TrelvixWindow.h"
#include "tests/fakes/BrowserEvent.h"
#include "tests/unit/tools/ToolbarFixture.h"
#include "tools/ButtonZoom.h"

#include <gmock/gmock.h>

using Microsoft::WRL::ComPtr;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
constexpr int Box = ZoomIndex;
constexpr wchar_t WrapperId[] = L"__hw__trelvix__zoom__";

using Wrappers = std::vector<std::shared_ptr<CMarkupElement>>;

Wrappers GetWrappers(const CFakeHtmlDocument& document)
{
    Wrappers wrappers = document.GetMarkup()->GetElements(L"DIV");
    std::erase_if(wrappers, [](const auto& spElement) { return spElement->attributes[L"id"] != WrapperId; });
    return wrappers;
}

/// The zooms of a document's wrappers, the outermost first.
std::vector<std::wstring> GetZooms(const CFakeHtmlDocument& document)
{
    std::vector<std::wstring> zooms;
    for (const auto& spWrapper : GetWrappers(document))
        zooms.push_back(spWrapper->style[L"zoom"]);
    return zooms;
}

/// The zoom of the runtime style of body or frameset; empty when it has none.
std::wstring GetRuntimeZoom(const CFakeHtmlDocument& document)
{
    return document.GetRoot()->runtimeStyle[L"zoom"];
}

class Zoom : public CToolbarTest
{
protected:
    static ComPtr<CFakeHtmlDocument> AddFrame(CFakeHtmlDocument& parent, const std::wstring& strSource)
    {
        const auto spFrame = MakeFake<CFakeHtmlDocument>(strSource);
        parent.AddFrame(spFrame.Get());
        return spFrame;
    }

    std::vector<std::wstring> GetZooms() { return ::GetZooms(*m_spPage.Get()); }
    bool IsEnabled() { return IsWindowEnabled(GetBox(Box)) != FALSE; }

    void Fire(CBrowserEvent event) { m_spBrowser->Fire(event); }
    void BeginLoad() { Fire(CBrowserEvent::BeforeNavigate2(m_spBrowser->AsFrame(), L"http://page.test/")); }
    void EndLoad() { Fire(CBrowserEvent::DocumentComplete(m_spBrowser->AsFrame(), L"http://page.test/")); }
};
} // namespace

TEST_F(Zoom, OffersTwelveValuesAndShowsTheNormalOne)
{
    EXPECT_THAT(GetEntries(Box), ElementsAre(L"10%", L"30%", L"60%", L"80%", L"90%", L"100%", L"120%", L"150%", L"200%",
                                             L"300%", L"500%", L"800%"));
    EXPECT_EQ(L"100%", GetBoxText(Box));
    EXPECT_EQ(5, SendMessageW(GetBox(Box), CB_GETCURSEL, 0, 0));
}

TEST_F(Zoom, ShowsTheSameAfterItWasPlacedAgain)
{
    EXPECT_TRUE(GetItem(Box).Place());
    EXPECT_EQ(12u, GetEntries(Box).size());
    EXPECT_EQ(L"100%", GetBoxText(Box));
}

TEST_F(Zoom, IsANarrowBox)
{
    RECT rect = {};
    GetWindowRect(GetBox(Box), &rect);
    EXPECT_EQ(60, rect.right - rect.left);
}

TEST_F(Zoom, IsNoPlaceholderThatGoesWithTheFocus)
{
    GetItem(Box).TakeFocus();
    EXPECT_EQ(L"100%", GetBoxText(Box));
}

TEST_F(Zoom, WrapsTheContentOfTheBody)
{
    ShowPage(L"<p>one</p>two");
    Enter(Box, L"150%");
    const Wrappers wrappers = GetWrappers(*m_spPage.Get());
    ASSERT_EQ(1u, wrappers.size());
    EXPECT_EQ(L"150%", wrappers[0]->style[L"zoom"]);
    EXPECT_EQ(L"relative", wrappers[0]->style[L"position"]);
    EXPECT_EQ(WrapperId, wrappers[0]->attributes[L"name"]);
    const auto spBody = m_spPage->GetRoot();
    EXPECT_EQ(std::next(spBody->begin), wrappers[0]->begin);
    EXPECT_EQ(std::next(wrappers[0]->end), spBody->end);
    EXPECT_EQ(L"onetwo", m_spPage->GetText());
    EXPECT_EQ(L"", GetRuntimeZoom(*m_spPage.Get()));
}

TEST_F(Zoom, ChangesTheStyleOfTheWrapperThatItFinds)
{
    ShowPage(L"text");
    EXPECT_TRUE(GetItem(Box).Search(L"150"));
    EXPECT_TRUE(GetItem(Box).Search(L"80"));
    EXPECT_THAT(GetZooms(), ElementsAre(L"80%"));
    EXPECT_TRUE(GetItem(Box).Search(L"100%"));
    EXPECT_THAT(GetZooms(), ElementsAre(L"100%"));
    EXPECT_EQ(L"relative", GetWrappers(*m_spPage.Get())[0]->style[L"position"]);
}

TEST_F(Zoom, MakesASecondWrapperWhenTheFirstIsDisplaced)
{
    ShowPage(L"<p>new</p><div id=\"__hw__trelvix__zoom__\" style=\"zoom: 150%\">text</div>");
    EXPECT_TRUE(GetItem(Box).Search(L"200"));
    EXPECT_THAT(GetZooms(), ElementsAre(L"200%", L"150%"));
    EXPECT_EQ(L"newtext", m_spPage->GetText());
}

TEST_F(Zoom, WrapsAnEmptyBody)
{
    ShowPage(L"<body></body>");
    EXPECT_TRUE(GetItem(Box).Search(L"150"));
    EXPECT_THAT(GetZooms(), ElementsAre(L"150%"));
}

TEST_F(Zoom, CorrectsWhatIsTooSmallAndLeavesThePage)
{
    for (const wchar_t* pszText : {L"5", L"9", L"0", L"-50", L"big", L"%", L" ", L"9.99"})
    {
        ShowPage(L"text");
        Enter(Box, pszText);
        EXPECT_EQ(L"10%", GetBoxText(Box)) << pszText;
        EXPECT_THAT(GetZooms(), IsEmpty()) << pszText;
    }
}

TEST_F(Zoom, CorrectsWhatIsTooLargeAndLeavesThePage)
{
    for (const wchar_t* pszText : {L"1000", L"1000%", L"99999999999999999999"})
    {
        ShowPage(L"text");
        Enter(Box, pszText);
        EXPECT_EQ(L"999%", GetBoxText(Box)) << pszText;
        EXPECT_THAT(GetZooms(), IsEmpty()) << pszText;
    }
}

TEST_F(Zoom, AppliesTheCorrectedValueOnTheNextEnter)
{
    ShowPage(L"text");
    Enter(Box, L"5");
    PressKey(Box, VK_RETURN);
    EXPECT_THAT(GetZooms(), ElementsAre(L"10%"));
}

TEST_F(Zoom, AppliesTheBounds)
{
    ShowPage(L"text");
    EXPECT_TRUE(GetItem(Box).Search(L"10"));
    EXPECT_THAT(GetZooms(), ElementsAre(L"10%"));
    EXPECT_TRUE(GetItem(Box).Search(L"999"));
    EXPECT_THAT(GetZooms(), ElementsAre(L"999%"));
}

TEST_F(Zoom, KeepsTheTextAsTyped)
{
    ShowPage(L"text");
    Enter(Box, L"  150 per cent");
    EXPECT_THAT(GetZooms(), ElementsAre(L"150%"));
    EXPECT_EQ(L"  150 per cent", GetBoxText(Box));
    EXPECT_EQ(12u, GetEntries(Box).size());
}

TEST_F(Zoom, DoesNothingForAnEmptyBox)
{
    ShowPage(L"text");
    Enter(Box, L"");
    EXPECT_FALSE(GetItem(Box).Search(L""));
    EXPECT_EQ(L"", GetBoxText(Box));
    EXPECT_THAT(GetZooms(), IsEmpty());
}

TEST_F(Zoom, AppliesASelectedValue)
{
    ShowPage(L"text");
    SendMessageW(GetBox(Box), CB_SETCURSEL, 7, 0);
    SendMessageW(GetBandWindow(), WM_COMMAND, MAKEWPARAM(Box, CBN_SELCHANGE), reinterpret_cast<LPARAM>(GetBox(Box)));
    EXPECT_THAT(GetZooms(), ElementsAre(L"150%"));
}

TEST_F(Zoom, ScalesAFrameOnce)
{
    const auto spFrame = AddFrame(ShowPage(L"page"), L"frame");
    const auto spInner = AddFrame(*spFrame.Get(), L"inner");
    EXPECT_TRUE(GetItem(Box).Search(L"150"));
    EXPECT_THAT(GetZooms(), ElementsAre(L"150%"));
    EXPECT_EQ(L"", GetRuntimeZoom(*m_spPage.Get()));
    EXPECT_EQ(L"66%", GetRuntimeZoom(*spFrame.Get()));
    EXPECT_THAT(::GetZooms(*spFrame.Get()), ElementsAre(L"150%"));
    EXPECT_EQ(L"66%", GetRuntimeZoom(*spInner.Get()));
    EXPECT_THAT(::GetZooms(*spInner.Get()), ElementsAre(L"150%"));
}

TEST_F(Zoom, CountersByTheWholePartOfTheQuotient)
{
    const auto spFrame = AddFrame(ShowPage(L"page"), L"frame");
    GetItem(Box).Search(L"100");
    EXPECT_EQ(L"100%", GetRuntimeZoom(*spFrame.Get()));
    GetItem(Box).Search(L"10");
    EXPECT_EQ(L"1000%", GetRuntimeZoom(*spFrame.Get()));
    GetItem(Box).Search(L"999");
    EXPECT_EQ(L"10%", GetRuntimeZoom(*spFrame.Get()));
    EXPECT_THAT(::GetZooms(*spFrame.Get()), ElementsAre(L"999%"));
}

TEST_F(Zoom, ScalesAFrameWhoseCounterZoomFails)
{
    const auto spFrame = AddFrame(ShowPage(L"page"), L"frame");
    CFakeCalls::Get().FailAll("Element.get_runtimeStyle", E_FAIL);
    EXPECT_TRUE(GetItem(Box).Search(L"150"));
    EXPECT_EQ(L"", GetRuntimeZoom(*spFrame.Get()));
    EXPECT_THAT(::GetZooms(*spFrame.Get()), ElementsAre(L"150%"));
}

TEST_F(Zoom, StepsOverAFrameThatDeniesAccess)
{
    CFakeHtmlDocument& page = ShowPage(L"page");
    const auto spDenied = MakeFake<CFakeHtmlDocument>(L"denied");
    page.AddFrame(spDenied.Get()).Deny();
    const auto spBehind = AddFrame(page, L"behind");
    EXPECT_TRUE(GetItem(Box).Search(L"150"));
    EXPECT_THAT(::GetZooms(*spDenied.Get()), IsEmpty());
    EXPECT_THAT(::GetZooms(*spBehind.Get()), ElementsAre(L"150%"));
}

TEST_F(Zoom, ScalesATopLevelFramesetByItsRuntimeStyle)
{
    const auto spFrame = AddFrame(ShowPage(L"<frameset><frame></frameset>"), L"frame");
    EXPECT_TRUE(GetItem(Box).Search(L"150"));
    EXPECT_EQ(L"150%", GetRuntimeZoom(*m_spPage.Get()));
    EXPECT_THAT(GetZooms(), IsEmpty());
    EXPECT_EQ(L"66%", GetRuntimeZoom(*spFrame.Get()));
    EXPECT_THAT(::GetZooms(*spFrame.Get()), ElementsAre(L"150%"));
}

TEST_F(Zoom, LeavesAFramesetInAFrameAndScalesItsFrames)
{
    const auto spFrame = AddFrame(ShowPage(L"<frameset><frame></frameset>"), L"<frameset><frame></frameset>");
    const auto spInner = AddFrame(*spFrame.Get(), L"inner");
    EXPECT_TRUE(GetItem(Box).Search(L"150"));
    EXPECT_EQ(L"", GetRuntimeZoom(*spFrame.Get()));
    EXPECT_THAT(::GetZooms(*spFrame.Get()), IsEmpty());
    EXPECT_THAT(::GetZooms(*spInner.Get()), ElementsAre(L"150%"));
}

TEST_F(Zoom, FailsOnATopLevelFramesetThatCanNotBeScaled)
{
    const auto spFrame = AddFrame(ShowPage(L"<frameset><frame></frameset>"), L"frame");
    CFakeCalls::Get().FailAll("Style.put_zoom", E_FAIL);
    EXPECT_FALSE(GetItem(Box).Search(L"150"));
    EXPECT_THAT(::GetZooms(*spFrame.Get()), IsEmpty());
}

TEST_F(Zoom, MakesAWrapperWhenTheFirstElementCanNotBeTold)
{
    for (const char* pszCall : {"ElementCollection.item", "Element.get_id"})
    {
        ShowPage(L"<div id=\"__hw__trelvix__zoom__\" style=\"zoom: 80%\">text</div>");
        CFakeCalls::Get().Reset();
        CFakeCalls::Get().FailAll(pszCall, E_FAIL);
        EXPECT_TRUE(GetItem(Box).Search(L"150"));
        EXPECT_THAT(GetZooms(), ElementsAre(L"150%", L"80%")) << pszCall;
    }
}

TEST_F(Zoom, FailsAtEachStepOfTheWrapper)
{
    for (const char* pszCall :
         {"HtmlDocument.get_body", "Element.get_all", "HtmlDocument.CreateMarkupPointer",
          "MarkupPointer.MoveAdjacentToElement", "HtmlDocument.CreateElement", "HtmlDocument.InsertElement"})
    {
        const auto spFrame = AddFrame(ShowPage(L"page"), L"frame");
        CFakeCalls::Get().Reset();
        CFakeCalls::Get().FailAll(pszCall, E_FAIL);
        EXPECT_FALSE(GetItem(Box).Search(L"150")) << pszCall;
        EXPECT_THAT(GetZooms(), IsEmpty()) << pszCall;
        EXPECT_THAT(::GetZooms(*spFrame.Get()), IsEmpty()) << pszCall;
    }
}

TEST_F(Zoom, NeedsBothMarkupInterfacesForAWrapper)
{
    ShowPage(L"text").Lack(IID_IMarkupContainer);
    EXPECT_FALSE(GetItem(Box).Search(L"150"));
    ShowPage(L"text").Lack(IID_IMarkupServices);
    EXPECT_FALSE(GetItem(Box).Search(L"150"));
    EXPECT_THAT(GetZooms(), IsEmpty());
}

TEST_F(Zoom, FailsWithoutAPage)
{
    m_spBrowser->m_spDocument.Reset();
    EXPECT_FALSE(GetItem(Box).Search(L"150"));
    m_spBrowser->m_spDocument = m_spBrowser->AsFrame();
    EXPECT_FALSE(GetItem(Box).Search(L"150"));
}

TEST_F(Zoom, FailsWithoutABrowser)
{
    GetToolbar().SetWebBrowser(nullptr);
    EXPECT_FALSE(GetItem(Box).Search(L"5"));
    EXPECT_EQ(L"100%", GetBoxText(Box));
    GetToolbar().SetWebBrowser(m_spBrowser.Get());
}

TEST_F(Zoom, SurvivesThatItsItemGoesMeanwhile)
{
    for (const char* pszCall : {"WebBrowser.get_Document", "Element.get_all", "FramesCollection.get_length"})
    {
        const auto spFrame = AddFrame(ShowPage(L"page"), L"frame");
        Type(Box, L"150");
        CFakeCalls::Get().ActIn(pszCall, [&] { GetToolbar().LoadLayout(); });
        EXPECT_EQ(S_OK, PressKey(Box, VK_RETURN));
        EXPECT_THAT(GetZooms(), ElementsAre(L"150%")) << pszCall;
        EXPECT_THAT(::GetZooms(*spFrame.Get()), ElementsAre(L"150%")) << pszCall;
    }
}

TEST_F(Zoom, RefusesWhileThePageLoads)
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

TEST_F(Zoom, ShowsTheNormalValueWhenAPageHasLoaded)
{
    Type(Box, L"150%");
    BeginLoad();
    EXPECT_EQ(L"150%", GetBoxText(Box));
    EndLoad();
    EXPECT_EQ(L"100%", GetBoxText(Box));
}

TEST_F(Zoom, FollowsTheEightNotifications)
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
