#include "framework/ComQuery.h"
#include "tests/unit/bench/EnginePage.h"
#include "tools/PageHighlight.h"
#include "tools/PageZoom.h"

#include <comutil.h>
#include <gmock/gmock.h>

using Microsoft::WRL::ComPtr;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{
constexpr char HtmlHeader[] = "Content-Type: text/html; charset=utf-8\r\n";

std::string Repeat(const std::string& text, int nTimes)
{
    std::string repeated;
    for (int n = 0; n < nTimes; ++n)
        repeated += text;
    return repeated;
}
} // namespace

/// The objects over the engine's page, by the product's own calls and by single ones.
class PageMarkup : public testing::Test
{
protected:
    void Load(const std::string& source, const std::string& headers = {})
    {
        m_spDocument = m_page.LoadSource(source, headers);
        ASSERT_TRUE(m_spDocument);
        m_spServices = QueryFor<IMarkupServices>(m_spDocument.Get());
        m_spStart = MakePointer();
        m_spEnd = MakePointer();
        ASSERT_EQ(m_spStart->SetGravity(POINTER_GRAVITY_Right), S_OK);
        ASSERT_EQ(MoveToStart(), S_OK);
    }

    ComPtr<IMarkupPointer> MakePointer()
    {
        ComPtr<IMarkupPointer> spPointer;
        EXPECT_EQ(m_spServices->CreateMarkupPointer(&spPointer), S_OK);
        return spPointer;
    }

    HRESULT MoveToStart()
    {
        return m_spStart->MoveToContainer(QueryFor<IMarkupContainer>(m_spDocument.Get()).Get(), TRUE);
    }

    HRESULT Find(std::wstring text) { return m_spStart->FindText(text.data(), 0, m_spEnd.Get(), nullptr); }

    ComPtr<IHTMLElement> MakeMark()
    {
        wchar_t szAttributes[] = L"COLOR=red";
        ComPtr<IHTMLElement> spElement;
        EXPECT_EQ(m_spServices->CreateElement(TAGID_FONT, szAttributes, &spElement), S_OK);
        return spElement;
    }
    HRESULT Insert(IHTMLElement* pElement)
    {
        return m_spServices->InsertElement(pElement, m_spStart.Get(), m_spEnd.Get());
    }
    HRESULT Mark() { return Insert(MakeMark().Get()); }
    HRESULT MoveBehind() { return m_spStart->MoveToPointer(m_spEnd.Get()); }

    ComPtr<IHTMLElement> GetBody()
    {
        ComPtr<IHTMLElement> spBody;
        EXPECT_EQ(m_spDocument->get_body(&spBody), S_OK);
        return spBody;
    }
    ComPtr<IHTMLElement> GetFirstElement()
    {
        ComPtr<IDispatch> spAll;
        EXPECT_EQ(GetBody()->get_all(&spAll), S_OK);
        ComPtr<IDispatch> spElement;
        const auto spElements = QueryFor<IHTMLElementCollection>(spAll.Get());
        EXPECT_EQ(spElements->item(_variant_t(0L), _variant_t(0L), &spElement), S_OK);
        return QueryFor<IHTMLElement>(spElement.Get());
    }

    /// The texts of the marks in the page, or in one of its frames.
    std::vector<std::wstring> GetMarks(const std::wstring& window = L"window")
    {
        return m_page.GetScriptTexts(window + L".document.querySelectorAll('font')", L"textContent");
    }

    CEnginePage& m_page = CEnginePage::Get();
    ComPtr<IHTMLDocument2> m_spDocument;
    ComPtr<IMarkupServices> m_spServices;
    ComPtr<IMarkupPointer> m_spStart;
    ComPtr<IMarkupPointer> m_spEnd;
};

TEST_F(PageMarkup, GivesTheSameObjectForTheSameElement)
{
    Load("<p>one</p><p>two</p>");
    EXPECT_TRUE(IsSameObject(GetBody().Get(), GetBody().Get()));
    const ComPtr<IHTMLElement> spFirst = GetFirstElement();
    EXPECT_TRUE(IsSameObject(spFirst.Get(), GetFirstElement().Get()));
    EXPECT_FALSE(IsSameObject(spFirst.Get(), GetBody().Get()));
}

TEST_F(PageMarkup, KnowsAnElementOfItsOwnInThePage)
{
    Load("one two");
    const ComPtr<IHTMLElement> spMark = MakeMark();
    ASSERT_EQ(Find(L"one"), S_OK);
    ASSERT_EQ(Insert(spMark.Get()), S_OK);
    EXPECT_TRUE(IsSameObject(spMark.Get(), GetFirstElement().Get()));
}

TEST_F(PageMarkup, KnowsAnElementOfItsOwnAfterItsObjectHasGone)
{
    Load("one two");
    ASSERT_EQ(Find(L"one"), S_OK);
    ASSERT_EQ(Mark(), S_OK);
    const ComPtr<IHTMLElement> spMark = GetFirstElement();
    _bstr_t tag;
    ASSERT_EQ(spMark->get_tagName(tag.GetAddress()), S_OK);
    EXPECT_STREQ(tag, L"FONT");
    EXPECT_EQ(Insert(spMark.Get()), E_INVALIDARG) << "it stands in the page";
}

TEST_F(PageMarkup, OfAPageThatHasGoneLeavesTheNewOneAlone)
{
    Load("<p>one one</p>");
    const auto spStart = m_spStart;
    const auto spEnd = m_spEnd;
    const auto spServices = m_spServices;
    const auto spBody = GetBody();
    const auto spMark = MakeMark();
    ASSERT_EQ(Find(L"one"), S_OK);
    Load("<p id=\"new\">one</p>");

    wchar_t szText[] = L"one";
    EXPECT_EQ(spStart->FindText(szText, 0, spEnd.Get(), nullptr), RPC_E_DISCONNECTED);
    EXPECT_EQ(spStart->MoveToPointer(spEnd.Get()), RPC_E_DISCONNECTED);
    EXPECT_EQ(spStart->SetGravity(POINTER_GRAVITY_Left), RPC_E_DISCONNECTED);
    EXPECT_EQ(spStart->MoveAdjacentToElement(spBody.Get(), ELEM_ADJ_AfterBegin), RPC_E_DISCONNECTED);
    EXPECT_EQ(spServices->InsertElement(spMark.Get(), spStart.Get(), spEnd.Get()), RPC_E_DISCONNECTED);
    ComPtr<IMarkupPointer> spPointer;
    EXPECT_EQ(spServices->CreateMarkupPointer(&spPointer), RPC_E_DISCONNECTED);
    ComPtr<IHTMLElement> spElement;
    EXPECT_EQ(spServices->CreateElement(TAGID_FONT, nullptr, &spElement), RPC_E_DISCONNECTED);
    BSTR bstrId = nullptr;
    EXPECT_EQ(spBody->get_id(&bstrId), RPC_E_DISCONNECTED);
    EXPECT_EQ(bstrId, nullptr);
    EXPECT_THAT(GetMarks(), IsEmpty());
}

TEST_F(PageMarkup, RefusesObjectsOfAnotherDocument)
{
    m_page.Serve("/inner.html", "<p>one");
    Load("<p>one</p><iframe src=\"/inner.html\"></iframe>");
    ComPtr<IHTMLFramesCollection2> spFrames;
    ASSERT_EQ(m_spDocument->get_frames(&spFrames), S_OK);
    _variant_t vIndex(0L);
    _variant_t vWindow;
    ASSERT_EQ(spFrames->item(&vIndex, &vWindow), S_OK);
    ComPtr<IHTMLDocument2> spInner;
    ASSERT_EQ(QueryFor<IHTMLWindow2>(vWindow.pdispVal)->get_document(&spInner), S_OK);

    const auto spInnerServices = QueryFor<IMarkupServices>(spInner.Get());
    ASSERT_EQ(Find(L"one"), S_OK);
    EXPECT_EQ(spInnerServices->InsertElement(MakeMark().Get(), m_spStart.Get(), m_spEnd.Get()), E_INVALIDARG);
    EXPECT_EQ(m_spStart->MoveToContainer(QueryFor<IMarkupContainer>(spInner.Get()).Get(), TRUE), E_INVALIDARG);
    ComPtr<IMarkupPointer> spForeign;
    ASSERT_EQ(spInnerServices->CreateMarkupPointer(&spForeign), S_OK);
    EXPECT_EQ(m_spStart->MoveToPointer(spForeign.Get()), E_INVALIDARG);
}

TEST_F(PageMarkup, FindsNothingThatIsNotShown)
{
    Load("<p hidden>word</p><p style=\"visibility: hidden\">word</p><textarea>word</textarea><!-- word -->"
         "<select><option>word</select><noscript>word</noscript><template>word</template><canvas>word</canvas>"
         "<details><summary>a wOrd</summary>word <b>word</b></details><p hidden=until-found>word</p>"
         "<details open><summary>text</summary>a woRd</details>"
         "<p style=\"visibility: hidden\"><b style=\"visibility: visible\">a Word</b></p>");
    ASSERT_TRUE(HighlightDocument(L"word", m_spDocument.Get()));
    EXPECT_THAT(GetMarks(), ElementsAre(L"wOrd", L"woRd", L"Word"));
}

TEST_F(PageMarkup, FindsNoBlankThatIsNotShown)
{
    Load("<p>\n  two\n </p>\n\n<p> words </p>");
    EXPECT_EQ(Find(L" "), S_FALSE);
}

TEST_F(PageMarkup, MarksTextFromRightToLeftAcrossElements)
{
    Load("<p dir=\"rtl\">\xD7\xA9\xD7\x9C<b>\xD7\x95\xD7\x9D \xD7\xA9</b>\xD7\x9C\xD7\x95\xD7\x9D</p>");
    ASSERT_TRUE(HighlightDocument(L"\x5E9\x5DC\x5D5\x5DD", m_spDocument.Get()));
    EXPECT_THAT(GetMarks(), ElementsAre(L"\x5E9\x5DC", L"\x5D5\x5DD", L"\x5E9", L"\x5DC\x5D5\x5DD"));
}

TEST_F(PageMarkup, TakesSignsOfPatternsForThemselves)
{
    Load("<p>a.b axb [a.b] \\d (</p>");
    for (const wchar_t* pszText : {L"a.b", L"\\d", L"["})
        ASSERT_TRUE(HighlightDocument(pszText, m_spDocument.Get()));
    EXPECT_THAT(GetMarks(), ElementsAre(L"a.b", L"[", L"a.b", L"\\d"));
}

TEST_F(PageMarkup, MarksAllHitsInOneElement)
{
    Load("<pre>" + Repeat("word ", 3000) + "</pre>");
    ASSERT_TRUE(HighlightDocument(L"word", m_spDocument.Get()));
    EXPECT_THAT(GetMarks(), SizeIs(3000));
}

TEST_F(PageMarkup, MarksAreBlackOnYellowWhateverThePageAllows)
{
    Load("<p>a word</p>", std::string(HtmlHeader) + "Content-Security-Policy: style-src 'none'; script-src 'none'; "
                                                    "require-trusted-types-for 'script'\r\n");
    ASSERT_TRUE(HighlightDocument(L"word", m_spDocument.Get()));
    EXPECT_EQ(m_page.GetScriptText(L"getComputedStyle(document.querySelector('font')).backgroundColor"),
              L"rgb(255, 255, 0)");
    EXPECT_EQ(m_page.GetScriptText(L"getComputedStyle(document.querySelector('font')).color"), L"rgb(0, 0, 0)");
}

TEST_F(PageMarkup, NestsMarksOfASecondSearch)
{
    Load("<p>a word</p>");
    for (int n = 0; n < 2; ++n)
        ASSERT_TRUE(HighlightDocument(L"word", m_spDocument.Get()));
    EXPECT_EQ(m_page.Run(L"document.querySelectorAll('p > font > font').length"), 1);
    EXPECT_THAT(GetMarks(), ElementsAre(L"word", L"word"));
}

TEST_F(PageMarkup, FindsWhatThePageChangedBetweenCalls)
{
    Load("<p>one</p><p id=\"later\"></p>");
    ASSERT_EQ(Find(L"one"), S_OK);
    ASSERT_EQ(MoveBehind(), S_OK);
    ASSERT_EQ(Find(L"two"), S_FALSE);
    m_page.Run(L"void (document.getElementById('later').textContent = 'two')");
    EXPECT_EQ(Find(L"two"), S_OK);
    ASSERT_EQ(Mark(), S_OK);
    EXPECT_THAT(GetMarks(), ElementsAre(L"two"));
}

TEST_F(PageMarkup, KeepsPlacesWhenThePageChangesAroundThem)
{
    Load("<p>one two one</p>");
    ASSERT_EQ(Find(L"two"), S_OK);
    ASSERT_EQ(MoveBehind(), S_OK);
    m_page.Run(L"void document.querySelector('p').firstChild.insertData(0, 'one ')");
    m_page.Run(L"void document.querySelector('p').before('one')");
    ASSERT_EQ(Find(L"one"), S_OK);
    ASSERT_EQ(Mark(), S_OK);
    EXPECT_EQ(m_page.GetScriptText(L"document.body.textContent.trim()"), L"oneone one two one");
    EXPECT_EQ(m_page.GetScriptText(L"document.querySelector('font').previousSibling.data"), L"one one two ");
}

TEST_F(PageMarkup, ForgetsAHitThatThePageTakesAway)
{
    Load("<p>word</p><p id=\"taken\">word</p><p>another</p>");
    ASSERT_EQ(Find(L"word"), S_OK);
    ASSERT_EQ(Mark(), S_OK);
    ASSERT_EQ(MoveBehind(), S_OK);
    ASSERT_EQ(Find(L"word"), S_OK);
    m_page.RunAtOnce(L"void document.getElementById('taken').remove()");
    ASSERT_EQ(Mark(), S_OK);
    ASSERT_EQ(MoveBehind(), S_OK);
    EXPECT_EQ(Find(L"word"), S_FALSE);
    EXPECT_THAT(GetMarks(), ElementsAre(L"word"));
    EXPECT_EQ(Find(L"another"), S_OK);
}

TEST_F(PageMarkup, FindsNoHitThatItsCallerTookAway)
{
    Load("<p id=\"taken\"></p><p>word</p>");
    const ComPtr<IHTMLElement> spTaken = GetFirstElement();
    m_page.Run(L"void document.body.append(document.getElementById('taken'))");
    ASSERT_EQ(spTaken->put_innerText(_bstr_t(L"word")), S_OK);
    ASSERT_EQ(Find(L"word"), S_OK);
    ASSERT_EQ(Mark(), S_OK);
    ASSERT_EQ(MoveBehind(), S_OK);
    ASSERT_EQ(spTaken->put_innerText(_bstr_t(L"text")), S_OK);
    EXPECT_EQ(Find(L"word"), S_FALSE);
    EXPECT_THAT(GetMarks(), ElementsAre(L"word"));
}

TEST_F(PageMarkup, SeesWhatAStyleHidesSoonAfter)
{
    Load("<style></style><p id=\"hidden\">word</p>");
    ASSERT_EQ(Find(L"word"), S_OK);
    m_page.Run(L"void document.styleSheets[0].insertRule('#hidden { display: none }')");
    ASSERT_TRUE(m_page.PumpUntil([this] {
        MoveToStart();
        return Find(L"word") == S_FALSE;
    }));
}

TEST_F(PageMarkup, TakesNoElementAroundTheWholeDocument)
{
    Load("<p>one</p>");
    ASSERT_EQ(m_spEnd->MoveToContainer(QueryFor<IMarkupContainer>(m_spDocument.Get()).Get(), FALSE), S_OK);
    EXPECT_TRUE(FAILED(Mark()));
    EXPECT_THAT(GetMarks(), IsEmpty());
    EXPECT_EQ(Find(L"one"), S_OK);
}

TEST_F(PageMarkup, KeepsTablesWhole)
{
    Load("<table><tbody>\n<tr>\n<td>one</td>\n<td>two</td>\n<td>three</td>\n</tr></tbody></table>");
    ASSERT_EQ(Find(L"three"), S_OK);
    const auto spBehind = MakePointer();
    ASSERT_EQ(spBehind->MoveToPointer(m_spEnd.Get()), S_OK);
    ASSERT_EQ(MoveToStart(), S_OK);
    ASSERT_EQ(Find(L"one"), S_OK);
    ASSERT_EQ(m_spEnd->MoveToPointer(spBehind.Get()), S_OK);
    ASSERT_EQ(Mark(), S_OK);
    EXPECT_THAT(GetMarks(), ElementsAre(L"one", L"two", L"three"));
    EXPECT_EQ(m_page.Run(L"document.querySelectorAll('td > font').length"), 3);
}

TEST_F(PageMarkup, LosesNoIdToACopy)
{
    Load("<p>a <b>wo</b>rd</p>");
    wchar_t szAttributes[] = L"id='mark' CLASS=\"first second\" lang=en hidden";
    ComPtr<IHTMLElement> spElement;
    ASSERT_EQ(m_spServices->CreateElement(TAGID_FONT, szAttributes, &spElement), S_OK);
    ASSERT_EQ(Find(L"word"), S_OK);
    ASSERT_EQ(Insert(spElement.Get()), S_OK);
    EXPECT_THAT(m_page.GetScriptTexts(L"document.querySelectorAll('font')", L"outerHTML"),
                ElementsAre(L"<font id=\"mark\" class=\"first second\" lang=\"en\" hidden=\"\">wo</font>",
                            L"<font class=\"first second\" lang=\"en\" hidden=\"\">rd</font>"));
}

TEST_F(PageMarkup, RefusesAttributesThatCannotBe)
{
    Load("<p>one</p>");
    wchar_t szAttributes[] = L"a/b=1";
    ComPtr<IHTMLElement> spElement;
    EXPECT_EQ(m_spServices->CreateElement(TAGID_FONT, szAttributes, &spElement), E_INVALIDARG);
    EXPECT_FALSE(spElement);
    EXPECT_EQ(Find(L"one"), S_OK);
}

TEST_F(PageMarkup, LaysARuntimeStyleOverTheElementsOwn)
{
    Load("<body style=\"zoom: 110%\">text");
    ComPtr<IHTMLStyle> spRuntime;
    ASSERT_EQ(QueryFor<IHTMLElement2>(GetBody().Get())->get_runtimeStyle(&spRuntime), S_OK);
    ComPtr<IHTMLStyle> spOwn;
    ASSERT_EQ(GetBody()->get_style(&spOwn), S_OK);
    const auto put = [](IHTMLStyle* pStyle, const wchar_t* pszZoom) {
        EXPECT_EQ(QueryFor<IHTMLStyle3>(pStyle)->put_zoom(_variant_t(pszZoom)), S_OK);
    };
    const auto get = [](IHTMLStyle* pStyle) {
        _variant_t vZoom;
        EXPECT_EQ(QueryFor<IHTMLStyle3>(pStyle)->get_zoom(&vZoom), S_OK);
        return std::wstring(vZoom.vt == VT_BSTR && vZoom.bstrVal ? vZoom.bstrVal : L"");
    };
    EXPECT_EQ(get(spRuntime.Get()), L"");
    put(spRuntime.Get(), L"50%");
    EXPECT_EQ(get(spRuntime.Get()), L"50%");
    EXPECT_EQ(get(spOwn.Get()), L"110%");
    put(spOwn.Get(), L"120%");
    EXPECT_EQ(m_page.GetScriptText(L"getComputedStyle(document.body).zoom"), L"0.5");
    put(spRuntime.Get(), L"");
    EXPECT_EQ(m_page.GetScriptText(L"document.body.style.zoom"), L"120%");
}
