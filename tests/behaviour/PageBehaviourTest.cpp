#include "tests/behaviour/PageBehaviourTest.h"

#include "framework/ComQuery.h"

#include <windows.h>
#include <comutil.h>
#include <gmock/gmock.h>

using Microsoft::WRL::ComPtr;
using testing::ElementsAre;
using testing::IsEmpty;

void PageBehaviour::Load(const std::wstring& strSource)
{
    m_spDocument = m_pPage->Load(strSource);
    ASSERT_TRUE(m_spDocument);
    m_spServices = QueryFor<IMarkupServices>(m_spDocument.Get());
    m_spContainer = QueryFor<IMarkupContainer>(m_spDocument.Get());
    ASSERT_TRUE(m_spServices && m_spContainer);
    ASSERT_EQ(S_OK, m_spServices->CreateMarkupPointer(&m_spStart));
    ASSERT_EQ(S_OK, m_spServices->CreateMarkupPointer(&m_spEnd));
    ASSERT_EQ(S_OK, m_spStart->SetGravity(POINTER_GRAVITY_Right));
    ASSERT_EQ(S_OK, m_spEnd->SetGravity(POINTER_GRAVITY_Left));
    ASSERT_EQ(S_OK, m_spStart->MoveToContainer(m_spContainer.Get(), TRUE));
    ASSERT_EQ(S_OK, m_spEnd->MoveToContainer(m_spContainer.Get(), FALSE));
}

void PageBehaviour::LoadWithFrames(const std::vector<std::wstring>& sources, std::optional<size_t> nForeign)
{
    m_spDocument = m_pPage->LoadWithFrames(sources, nForeign);
    ASSERT_TRUE(m_spDocument);
}

HRESULT PageBehaviour::GetFrame(long nIndex, VARIANT* pvFrame)
{
    ComPtr<IHTMLFramesCollection2> spFrames;
    EXPECT_EQ(S_OK, m_spDocument->get_frames(&spFrames));
    _variant_t vIndex(nIndex);
    return spFrames->item(&vIndex, pvFrame);
}

HRESULT PageBehaviour::GetFrameDocument(long nIndex, IHTMLDocument2** ppDocument)
{
    _variant_t vFrame;
    EXPECT_EQ(S_OK, GetFrame(nIndex, &vFrame));
    EXPECT_EQ(VT_DISPATCH, vFrame.vt);
    return QueryFor<IHTMLWindow2>(vFrame.pdispVal)->get_document(ppDocument);
}

ComPtr<IHTMLElement> PageBehaviour::GetBody()
{
    ComPtr<IHTMLElement> spBody;
    EXPECT_EQ(S_OK, m_spDocument->get_body(&spBody));
    return spBody;
}

ComPtr<IHTMLElement> PageBehaviour::GetElementInBody(long nIndex)
{
    ComPtr<IDispatch> spAll;
    EXPECT_EQ(S_OK, GetBody()->get_all(&spAll));
    const auto spElements = QueryFor<IHTMLElementCollection>(spAll.Get());
    ComPtr<IDispatch> spElement;
    EXPECT_EQ(S_OK, spElements->item(_variant_t(nIndex), _variant_t(nIndex), &spElement));
    return QueryFor<IHTMLElement>(spElement.Get());
}

ComPtr<IHTMLElement> PageBehaviour::MakeElement(ELEMENT_TAG_ID eTag, std::wstring strAttributes)
{
    ComPtr<IHTMLElement> spElement;
    EXPECT_EQ(S_OK, m_spServices->CreateElement(eTag, strAttributes.data(), &spElement));
    return spElement;
}

HRESULT PageBehaviour::Find(std::wstring strText)
{
    return m_spStart->FindText(strText.data(), 0, m_spEnd.Get(), nullptr);
}

HRESULT PageBehaviour::Wrap(ELEMENT_TAG_ID eTag, const std::wstring& strAttributes)
{
    return m_spServices->InsertElement(MakeElement(eTag, strAttributes).Get(), m_spStart.Get(), m_spEnd.Get());
}

void PageBehaviour::Mark(const std::wstring& strText)
{
    ASSERT_EQ(S_OK, Find(strText));
    ASSERT_EQ(S_OK, Wrap(TAGID_FONT));
}

std::wstring PageBehaviour::GetMarkedText()
{
    std::wstring strMarked;
    for (const std::wstring& strText : m_pPage->GetTextsOf(L"FONT"))
        strMarked += strText;
    return strMarked;
}

namespace
{
std::wstring GetId(IHTMLElement* pElement)
{
    BSTR bstrId = nullptr;
    EXPECT_EQ(S_OK, pElement->get_id(&bstrId));
    _bstr_t id(bstrId, false);
    return id.length() != 0 ? id.GetBSTR() : L"";
}

std::wstring GetBodyText(IHTMLDocument2* pDocument)
{
    ComPtr<IHTMLElement> spBody;
    EXPECT_EQ(S_OK, pDocument->get_body(&spBody));
    _bstr_t text;
    EXPECT_EQ(S_OK, spBody->get_innerText(text.GetAddress()));
    return text.length() != 0 ? text.GetBSTR() : L"";
}

std::wstring GetZoom(IHTMLStyle* pStyle)
{
    _variant_t vZoom;
    EXPECT_EQ(S_OK, QueryFor<IHTMLStyle3>(pStyle)->get_zoom(&vZoom));
    return vZoom.vt == VT_BSTR && vZoom.bstrVal != nullptr ? vZoom.bstrVal : L"";
}

HRESULT PutZoom(IHTMLStyle* pStyle, const wchar_t* pszZoom)
{
    return QueryFor<IHTMLStyle3>(pStyle)->put_zoom(_variant_t(pszZoom));
}
} // namespace

TEST_P(PageBehaviour, HasABodyOrAFrameset)
{
    Load(L"text");
    EXPECT_TRUE(QueryFor<IHTMLBodyElement>(GetBody().Get()));
    EXPECT_FALSE(QueryFor<IHTMLFrameSetElement>(GetBody().Get()));
    Load(L"<frameset cols=\"*\"></frameset>");
    EXPECT_FALSE(QueryFor<IHTMLBodyElement>(GetBody().Get()));
    EXPECT_TRUE(QueryFor<IHTMLFrameSetElement>(GetBody().Get()));
}

TEST_P(PageBehaviour, FindsTextOfAnyCaseInsideAWord)
{
    Load(L"<p>xaFooBx</p>");
    Mark(L"AfOoB");
    EXPECT_THAT(m_pPage->GetTextsOf(L"FONT"), ElementsAre(L"aFooB"));
    EXPECT_EQ(L"xaFooBx", m_pPage->GetText());
}

TEST_P(PageBehaviour, FindsTheFirstHitBehindThePointer)
{
    Load(L"<p>one two one</p>");
    Mark(L"one");
    ASSERT_EQ(S_OK, m_spStart->MoveToPointer(m_spEnd.Get()));
    Mark(L"one");
    EXPECT_THAT(m_pPage->GetTextsOf(L"FONT"), ElementsAre(L"one", L"one"));
    ASSERT_EQ(S_OK, m_spStart->MoveToPointer(m_spEnd.Get()));
    EXPECT_EQ(S_FALSE, Find(L"one"));
    EXPECT_EQ(S_FALSE, Find(L"two"));
}

TEST_P(PageBehaviour, FindsOverlappingHitsOnce)
{
    Load(L"<p>aaaaa</p>");
    Mark(L"aa");
    ASSERT_EQ(S_OK, m_spStart->MoveToPointer(m_spEnd.Get()));
    Mark(L"aa");
    ASSERT_EQ(S_OK, m_spStart->MoveToPointer(m_spEnd.Get()));
    EXPECT_EQ(S_FALSE, Find(L"aa"));
}

TEST_P(PageBehaviour, FindsTextThatRunsThroughInlineElements)
{
    Load(L"<p>be<b>tw</b><i>ee</i>n</p>");
    Mark(L"between");
    EXPECT_EQ(L"between", GetMarkedText());
    EXPECT_EQ(L"between", m_pPage->GetText());
}

TEST_P(PageBehaviour, FindsNoTextThatRunsOutOfABlock)
{
    Load(L"<p>one</p><p>two</p><div>three</div>four<br>five<img>six<h3>seven</h3>");
    EXPECT_EQ(S_FALSE, Find(L"onetwo"));
    EXPECT_EQ(S_FALSE, Find(L"threefour"));
    EXPECT_EQ(S_FALSE, Find(L"fourfive"));
    EXPECT_EQ(S_FALSE, Find(L"fivesix"));
    EXPECT_EQ(S_FALSE, Find(L"sixseven"));
    EXPECT_EQ(S_OK, Find(L"four"));
}

TEST_P(PageBehaviour, FindsOnlyWhatAReaderSees)
{
    Load(L"<style>.word {}</style><script>var word;</script><p>a word</p><script>word = 1;</script>");
    Mark(L"word");
    EXPECT_THAT(m_pPage->GetTextsOf(L"P"), ElementsAre(L"a word"));
    EXPECT_THAT(m_pPage->GetTextsOf(L"FONT"), ElementsAre(L"word"));
    ASSERT_EQ(S_OK, m_spStart->MoveToPointer(m_spEnd.Get()));
    EXPECT_EQ(S_FALSE, Find(L"word"));
}

TEST_P(PageBehaviour, FindsNothingInFields)
{
    Load(L"<textarea>word</textarea><select><option>word</option></select>wo<select></select>rd");
    EXPECT_EQ(S_FALSE, Find(L"word"));
}

TEST_P(PageBehaviour, FindsBlanksAsAReaderSeesThem)
{
    Load(L"<p>two\n   words</p><p>two\xA0<b> words</b></p><p>twowords</p>");
    Mark(L"TWO words");
    EXPECT_THAT(m_pPage->GetTextsOf(L"FONT"), ElementsAre(L"two\n   words"));
    ASSERT_EQ(S_OK, m_spStart->MoveToPointer(m_spEnd.Get()));
    Mark(L"two  words");
    EXPECT_EQ(L"two\n   wordstwo\xA0 words", GetMarkedText());
    ASSERT_EQ(S_OK, m_spStart->MoveToPointer(m_spEnd.Get()));
    EXPECT_EQ(S_FALSE, Find(L"two words"));
}

TEST_P(PageBehaviour, FindsWithoutAnEndPointer)
{
    Load(L"<p>one two one</p>");
    wchar_t szText[] = L"two";
    ASSERT_EQ(S_OK, m_spStart->FindText(szText, 0, nullptr, nullptr));
    Mark(L"one");
    ASSERT_EQ(S_OK, m_spStart->MoveToPointer(m_spEnd.Get()));
    EXPECT_EQ(S_FALSE, m_spStart->FindText(szText, 0, nullptr, nullptr));
    EXPECT_EQ(S_FALSE, Find(L"one")) << "the first hit was behind the pointer";
    EXPECT_THAT(m_pPage->GetTextsOf(L"FONT"), ElementsAre(L"one"));
}

TEST_P(PageBehaviour, LeavesBothPointersWhenNothingIsFound)
{
    Load(L"<p>one two</p>");
    ASSERT_EQ(S_OK, Find(L"one"));
    ASSERT_EQ(S_FALSE, Find(L"three"));
    ASSERT_EQ(S_OK, Wrap(TAGID_FONT));
    EXPECT_THAT(m_pPage->GetTextsOf(L"FONT"), ElementsAre(L"one"));
}

TEST_P(PageBehaviour, FindsTextOfAllScripts)
{
    Load(L"<p>\x5E9\x5DC\x5D5\x5DD \x65E5\x672C\x8A9E \xC9t\xE9 \xD83D\xDE00</p>");
    Mark(L"\x5DC\x5D5");
    Mark(L"\x672C");
    Mark(L"\xE9T\xC9");
    Mark(L"\xD83D\xDE00");
    EXPECT_THAT(m_pPage->GetTextsOf(L"FONT"), ElementsAre(L"\x5DC\x5D5", L"\x672C", L"\xC9t\xE9", L"\xD83D\xDE00"));
}

TEST_P(PageBehaviour, PutsAnElementAcrossTheBordersOfOthers)
{
    Load(L"<p>a <b>bold wo</b>rd <i>here</i></p>");
    Mark(L"word h");
    EXPECT_EQ(L"word h", GetMarkedText());
    EXPECT_EQ(L"a bold word here", m_pPage->GetText());
    EXPECT_THAT(m_pPage->GetTextsOf(L"B"), ElementsAre(L"bold wo"));
    EXPECT_THAT(m_pPage->GetTextsOf(L"I"), ElementsAre(L"here"));
}

TEST_P(PageBehaviour, KeepsPointersInsideWhatIsPutAroundThem)
{
    Load(L"<p>a word</p>");
    Mark(L"word");
    Mark(L"word");
    EXPECT_THAT(m_pPage->GetTextsOf(L"FONT"), ElementsAre(L"word", L"word"));
    ASSERT_EQ(S_OK, m_spStart->MoveToPointer(m_spEnd.Get()));
    EXPECT_EQ(S_FALSE, Find(L"word"));
    EXPECT_EQ(L"a word", m_pPage->GetText());
}

TEST_P(PageBehaviour, ComparesPlaces)
{
    Load(L"<p>a word</p>");
    BOOL bEqual = TRUE;
    ASSERT_EQ(S_OK, m_spStart->IsEqualTo(m_spEnd.Get(), &bEqual));
    EXPECT_FALSE(bEqual);
    ASSERT_EQ(S_OK, m_spStart->MoveToPointer(m_spEnd.Get()));
    ASSERT_EQ(S_OK, m_spStart->IsEqualTo(m_spEnd.Get(), &bEqual));
    EXPECT_TRUE(bEqual);
}

TEST_P(PageBehaviour, PutsAnElementAroundTheWholeContentOfTheBody)
{
    Load(L"<p id=\"first\">one</p><p id=\"second\">two</p>");
    const ComPtr<IHTMLElement> spBody = GetBody();
    ASSERT_EQ(S_OK, m_spStart->MoveAdjacentToElement(spBody.Get(), ELEM_ADJ_AfterBegin));
    ASSERT_EQ(S_OK, m_spEnd->MoveAdjacentToElement(spBody.Get(), ELEM_ADJ_BeforeEnd));
    ASSERT_EQ(S_OK, Wrap(TAGID_DIV, L"ID = \"outer\" NAME=\"outer\" STYLE=\"position: relative;zoom: 150%\""));
    EXPECT_THAT(m_pPage->GetIds(), ElementsAre(L"outer", L"first", L"second"));
    EXPECT_THAT(m_pPage->GetTextsOf(L"DIV"), ElementsAre(L"onetwo"));
    EXPECT_EQ(L"relative", m_pPage->GetStyle(L"outer", L"position"));
}

TEST_P(PageBehaviour, PutsAnElementAroundASingleElement)
{
    Load(L"<p id=\"first\">one</p><p id=\"second\">two</p>");
    const ComPtr<IHTMLElement> spSecond = GetElementInBody(1);
    ASSERT_EQ(S_OK, m_spStart->MoveAdjacentToElement(spSecond.Get(), ELEM_ADJ_BeforeBegin));
    ASSERT_EQ(S_OK, m_spEnd->MoveAdjacentToElement(spSecond.Get(), ELEM_ADJ_AfterEnd));
    ASSERT_EQ(S_OK, Wrap(TAGID_DIV, L"ID=\"outer\""));
    EXPECT_THAT(m_pPage->GetIds(), ElementsAre(L"first", L"outer", L"second"));
    EXPECT_THAT(m_pPage->GetTextsOf(L"DIV"), ElementsAre(L"two"));
}

TEST_P(PageBehaviour, PutsAnElementIntoAnEmptyBody)
{
    Load(L"<body></body>");
    const ComPtr<IHTMLElement> spBody = GetBody();
    ASSERT_EQ(S_OK, m_spStart->MoveAdjacentToElement(spBody.Get(), ELEM_ADJ_AfterBegin));
    ASSERT_EQ(S_OK, m_spEnd->MoveAdjacentToElement(spBody.Get(), ELEM_ADJ_BeforeEnd));
    ASSERT_EQ(S_OK, Wrap(TAGID_DIV, L"ID=\"outer\""));
    EXPECT_THAT(m_pPage->GetIds(), ElementsAre(L"outer"));
    EXPECT_EQ(L"", m_pPage->GetText());
}

TEST_P(PageBehaviour, TakesAnElementIntoThePageOnce)
{
    Load(L"<p>one two</p>");
    const ComPtr<IHTMLElement> spElement = MakeElement(TAGID_FONT, L"");
    ASSERT_EQ(S_OK, Find(L"one"));
    ASSERT_EQ(S_OK, m_spServices->InsertElement(spElement.Get(), m_spStart.Get(), m_spEnd.Get()));
    ASSERT_EQ(S_OK, Find(L"two"));
    EXPECT_TRUE(FAILED(m_spServices->InsertElement(spElement.Get(), m_spStart.Get(), m_spEnd.Get())));
    EXPECT_THAT(m_pPage->GetTextsOf(L"FONT"), ElementsAre(L"one"));
}

TEST_P(PageBehaviour, PutsAnElementWhereASearchFoundNothingBefore)
{
    Load(L"<p id=\"first\">one</p><p>two</p>");
    ASSERT_EQ(S_FALSE, Find(L"three"));
    const ComPtr<IHTMLElement> spFirst = GetElementInBody(0);
    ASSERT_EQ(S_OK, m_spStart->MoveAdjacentToElement(spFirst.Get(), ELEM_ADJ_AfterBegin));
    ASSERT_EQ(S_OK, m_spEnd->MoveAdjacentToElement(spFirst.Get(), ELEM_ADJ_BeforeEnd));
    ASSERT_EQ(S_OK, Wrap(TAGID_FONT));
    EXPECT_THAT(m_pPage->GetTextsOf(L"FONT"), ElementsAre(L"one"));
}

TEST_P(PageBehaviour, RefusesPointersInTheWrongOrder)
{
    Load(L"<p>one</p>");
    EXPECT_TRUE(
        FAILED(m_spServices->InsertElement(MakeElement(TAGID_FONT, L"").Get(), m_spEnd.Get(), m_spStart.Get())));
    EXPECT_THAT(m_pPage->GetTextsOf(L"FONT"), IsEmpty());
}

TEST_P(PageBehaviour, RefusesAPointerThatStandsNowhere)
{
    Load(L"<p>one</p>");
    ComPtr<IMarkupPointer> spNowhere;
    ASSERT_EQ(S_OK, m_spServices->CreateMarkupPointer(&spNowhere));
    BOOL bPositioned = TRUE;
    ASSERT_EQ(S_OK, spNowhere->IsPositioned(&bPositioned));
    EXPECT_FALSE(bPositioned);
    wchar_t szText[] = L"one";
    EXPECT_TRUE(FAILED(spNowhere->FindText(szText, 0, m_spEnd.Get(), nullptr)));
    EXPECT_TRUE(FAILED(m_spStart->MoveToPointer(spNowhere.Get())));
    EXPECT_TRUE(
        FAILED(m_spServices->InsertElement(MakeElement(TAGID_FONT, L"").Get(), spNowhere.Get(), m_spEnd.Get())));
}

TEST_P(PageBehaviour, NumbersTheElementsOfTheBody)
{
    Load(L"<div id=\"outer\"><b>one</b></div><p id=\"last\">two</p>");
    EXPECT_EQ(L"outer", GetId(GetElementInBody(0).Get()));
    EXPECT_EQ(L"", GetId(GetElementInBody(1).Get()));
    EXPECT_EQ(L"last", GetId(GetElementInBody(2).Get()));
    EXPECT_FALSE(GetElementInBody(3));
}

TEST_P(PageBehaviour, ChangesTheZoomOfAStyle)
{
    Load(L"<div id=\"box\" style=\"color: red; zoom: 150%\">text</div>");
    ComPtr<IHTMLStyle> spStyle;
    ASSERT_EQ(S_OK, GetElementInBody(0)->get_style(&spStyle));
    EXPECT_EQ(L"150%", GetZoom(spStyle.Get()));
    ASSERT_EQ(S_OK, PutZoom(spStyle.Get(), L"80%"));
    EXPECT_EQ(L"80%", GetZoom(spStyle.Get()));
    EXPECT_EQ(L"red", m_pPage->GetStyle(L"box", L"color"));
}

TEST_P(PageBehaviour, ChangesTheZoomOfARuntimeStyle)
{
    Load(L"<body id=\"box\">text</body>");
    ComPtr<IHTMLStyle> spStyle;
    ASSERT_EQ(S_OK, QueryFor<IHTMLElement2>(GetBody().Get())->get_runtimeStyle(&spStyle));
    ASSERT_EQ(S_OK, PutZoom(spStyle.Get(), L"66%"));
    EXPECT_EQ(L"66%", GetZoom(spStyle.Get()));
}

TEST_P(PageBehaviour, HasNoFramesInAPlainPage)
{
    Load(L"text");
    ComPtr<IHTMLFramesCollection2> spFrames;
    ASSERT_EQ(S_OK, m_spDocument->get_frames(&spFrames));
    long nFrames = -1;
    EXPECT_EQ(S_OK, spFrames->get_length(&nFrames));
    EXPECT_EQ(0, nFrames);
}

TEST_P(PageBehaviour, GivesTheDocumentsOfItsFramesInOrder)
{
    LoadWithFrames({L"one", L"two"});
    ComPtr<IHTMLFramesCollection2> spFrames;
    ASSERT_EQ(S_OK, m_spDocument->get_frames(&spFrames));
    long nFrames = 0;
    EXPECT_EQ(S_OK, spFrames->get_length(&nFrames));
    EXPECT_EQ(2, nFrames);
    ComPtr<IHTMLDocument2> spFirst;
    ASSERT_EQ(S_OK, GetFrameDocument(0, &spFirst));
    EXPECT_EQ(L"one", GetBodyText(spFirst.Get()));
    ComPtr<IHTMLDocument2> spSecond;
    ASSERT_EQ(S_OK, GetFrameDocument(1, &spSecond));
    EXPECT_EQ(L"two", GetBodyText(spSecond.Get()));
}

TEST_P(PageBehaviour, DeniesTheDocumentOfAFrameOfAnotherOrigin)
{
    LoadWithFrames({L"one", L"foreign", L"three"}, 1);
    ComPtr<IHTMLDocument2> spForeign;
    EXPECT_EQ(E_ACCESSDENIED, GetFrameDocument(1, &spForeign));
    EXPECT_FALSE(spForeign);
    ComPtr<IHTMLDocument2> spBehind;
    ASSERT_EQ(S_OK, GetFrameDocument(2, &spBehind));
    EXPECT_EQ(L"three", GetBodyText(spBehind.Get()));
}

TEST_P(PageBehaviour, HasNoFrameBehindTheLast)
{
    LoadWithFrames({L"one"});
    for (const long nIndex : {1L, 100L, -1L})
    {
        _variant_t vFrame;
        EXPECT_EQ(DISP_E_MEMBERNOTFOUND, GetFrame(nIndex, &vFrame)) << nIndex;
        EXPECT_EQ(VT_EMPTY, vFrame.vt);
    }
}
