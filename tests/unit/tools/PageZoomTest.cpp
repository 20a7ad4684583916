#include "band/ButtonIndex.h"
#include "band/TrelvixWindow.h"
#include "tests/unit/tools/ZoomFixture.h"
#include "tools/ButtonSearchWeb.h"

#include <gmock/gmock.h>

using Microsoft::WRL::ComPtr;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
constexpr int Box = ZoomIndex;

/// The zoom of the runtime style of body or frameset; empty when it has none.
std::wstring GetRuntimeZoom(const CFakeHtmlDocument& document)
{
    return document.GetRoot()->runtimeStyle[L"zoom"];
}

/// What a zoom does to a page and its frames.
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
};
} // namespace

TEST_F(Zoom, WrapsTheContentOfTheBody)
{
    ShowPage(L"<p>one</p>two");
    Enter(Box, L"150%");
    const ZoomWrappers wrappers = GetZoomWrappers(*m_spPage.Get());
    ASSERT_EQ(1u, wrappers.size());
    EXPECT_EQ(L"150%", wrappers[0]->style[L"zoom"]);
    EXPECT_EQ(L"relative", wrappers[0]->style[L"position"]);
    EXPECT_EQ(ZoomWrapperId, wrappers[0]->attributes[L"name"]);
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
    EXPECT_EQ(L"relative", GetZoomWrappers(*m_spPage.Get())[0]->style[L"position"]);
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

TEST_F(Zoom, TakesOnlyTheExactIdForItsWrapper)
{
    ShowPage(L"<div id=\"__HW__trelvix__zoom__\" style=\"zoom: 80%\">text</div>");
    EXPECT_TRUE(GetItem(Box).Search(L"150"));
    EXPECT_THAT(GetZooms(), ElementsAre(L"150%"));
    EXPECT_EQ(2u, m_spPage->GetMarkup()->GetElements(L"DIV").size());
}

TEST_F(Zoom, GoesOnBehindAFrameThatCanNotBeScaled)
{
    CFakeHtmlDocument& page = ShowPage(L"page");
    const auto spFrame = AddFrame(page, L"frame");
    const auto spInner = AddFrame(*spFrame.Get(), L"inner");
    const auto spBehind = AddFrame(page, L"behind");
    spFrame->Lack(IID_IMarkupServices);
    EXPECT_TRUE(GetItem(Box).Search(L"150"));
    EXPECT_THAT(GetZooms(), ElementsAre(L"150%"));
    EXPECT_EQ(L"66%", GetRuntimeZoom(*spFrame.Get()));
    EXPECT_THAT(::GetZooms(*spFrame.Get()), IsEmpty());
    EXPECT_EQ(L"", GetRuntimeZoom(*spInner.Get()));
    EXPECT_THAT(::GetZooms(*spInner.Get()), IsEmpty());
    EXPECT_THAT(::GetZooms(*spBehind.Get()), ElementsAre(L"150%"));
}

TEST_F(Zoom, StepsOverAFrameThatIsNoWindow)
{
    CFakeHtmlDocument& page = ShowPage(L"page");
    const auto spNone = MakeFake<CFakeHtmlDocument>(L"no window");
    page.AddFrame(spNone.Get()).Lack(IID_IHTMLWindow2);
    const auto spBehind = AddFrame(page, L"behind");
    EXPECT_TRUE(GetItem(Box).Search(L"150"));
    EXPECT_THAT(::GetZooms(*spNone.Get()), IsEmpty());
    EXPECT_THAT(::GetZooms(*spBehind.Get()), ElementsAre(L"150%"));
}

TEST_F(Zoom, MakesItsCallsInOrder)
{
    const auto spFrame = AddFrame(ShowPage(L"<p>page</p>"), L"<p>frame</p>");
    CFakeCalls::Get().ClearLog();
    EXPECT_TRUE(GetItem(Box).Search(L"150"));
    EXPECT_THAT(CFakeCalls::Get().GetNames(),
                ElementsAre("WebBrowser.get_Document", "HtmlDocument.get_body", "Element.get_all",
                            "ElementCollection.item", "Element.get_id", "HtmlDocument.CreateMarkupPointer",
                            "HtmlDocument.CreateMarkupPointer", "MarkupPointer.MoveAdjacentToElement",
                            "MarkupPointer.MoveAdjacentToElement", "HtmlDocument.CreateElement",
                            "HtmlDocument.InsertElement", "HtmlDocument.get_frames", "FramesCollection.get_length",
                            "FramesCollection.item", "FrameWindow.get_document", "HtmlDocument.get_body",
                            "Element.get_runtimeStyle", "Style.put_zoom", "Element.get_all", "ElementCollection.item",
                            "Element.get_id", "HtmlDocument.CreateMarkupPointer", "HtmlDocument.CreateMarkupPointer",
                            "MarkupPointer.MoveAdjacentToElement", "MarkupPointer.MoveAdjacentToElement",
                            "HtmlDocument.CreateElement", "HtmlDocument.InsertElement", "HtmlDocument.get_frames",
                            "FramesCollection.get_length"));
}
