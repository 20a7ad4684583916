#include "band/ButtonIndex.h"
#include "band/TrelvixWindow.h"
#include "tests/unit/tools/ToolbarFixture.h"
#include "tools/ButtonSearchWeb.h"

#include <gmock/gmock.h>

using Microsoft::WRL::ComPtr;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
constexpr int Box = SearchInPageIndex;

ComPtr<CFakeHtmlDocument> MakeDocument(const std::wstring& strSource)
{
    return MakeFake<CFakeHtmlDocument>(strSource);
}

std::vector<std::wstring> GetMarks(const CFakeHtmlDocument& document)
{
    return document.GetTextsOf(L"FONT");
}

std::wstring Repeat(const std::wstring& strText, int nTimes)
{
    std::wstring strRepeated;
    for (int n = 0; n < nTimes; ++n)
        strRepeated += strText;
    return strRepeated;
}

/// What a search marks in a page and its frames.
class Highlight : public CToolbarTest
{
protected:
    /// The marks in a page with that source after a word was entered.
    std::vector<std::wstring> Mark(const std::wstring& strSource, const std::wstring& strText)
    {
        ShowPage(strSource);
        EXPECT_TRUE(GetItem(Box).Search(strText));
        return GetMarks(*m_spPage.Get());
    }
};
} // namespace

TEST_F(Highlight, MarksInBlackOnYellow)
{
    Mark(L"a word", L"word");
    const auto fonts = m_spPage->GetMarkup()->GetElements(L"FONT");
    ASSERT_EQ(1u, fonts.size());
    EXPECT_EQ(L"black", fonts[0]->style[L"color"]);
    EXPECT_EQ(L"yellow", fonts[0]->style[L"background-color"]);
    EXPECT_EQ(2u, fonts[0]->style.size());
}

TEST_F(Highlight, MarksEachHitOfAnyCaseAlsoInsideAWord)
{
    EXPECT_THAT(Mark(L"FOO <b>Foo</b> afoob", L"foo"), ElementsAre(L"FOO", L"Foo", L"foo"));
    EXPECT_EQ(L"FOO Foo afoob", m_spPage->GetText());
}

TEST_F(Highlight, MarksAHitThatRunsThroughSeveralElements)
{
    EXPECT_THAT(Mark(L"<p>a <b>bold wo</b>rd</p>", L"bold word"), ElementsAre(L"bold word"));
    EXPECT_EQ(L"a bold word", m_spPage->GetText());
}

TEST_F(Highlight, MarksHitsThatTouch)
{
    EXPECT_THAT(Mark(L"ababab", L"ab"), ElementsAre(L"ab", L"ab", L"ab"));
    EXPECT_THAT(Mark(L"aaaaa", L"aa"), ElementsAre(L"aa", L"aa"));
}

TEST_F(Highlight, MarksTextOfAllScripts)
{
    EXPECT_THAT(Mark(L"\x5E9\x5DC\x5D5\x5DD", L"\x5DC\x5D5"), ElementsAre(L"\x5DC\x5D5"));
    EXPECT_THAT(Mark(L"\x627\x644\x633\x644\x627\x645", L"\x644\x627"), ElementsAre(L"\x644\x627"));
    EXPECT_THAT(Mark(L"\x65E5\x672C\x8A9E\x672C", L"\x672C"), ElementsAre(L"\x672C", L"\x672C"));
    EXPECT_THAT(Mark(L"a \xD83D\xDE00 b", L"\xD83D\xDE00"), ElementsAre(L"\xD83D\xDE00"));
}

TEST_F(Highlight, MarksWordsOfAnyLength)
{
    for (const int nLength : {1, 2, 126, 127, 128, 129, 5000})
    {
        const std::wstring strWord = Repeat(L"w", nLength);
        EXPECT_THAT(Mark(L"<p>a " + strWord + L" b</p>", strWord), ElementsAre(strWord)) << nLength;
    }
}

TEST_F(Highlight, ChangesNothingWhereTheWordIsNotFound)
{
    EXPECT_THAT(Mark(L"<p>text</p>", L"word"), IsEmpty());
    EXPECT_THAT(GetEntries(Box), ElementsAre(L"word"));
    EXPECT_EQ(0u, CFakeCalls::Get().CountOf("HtmlDocument.InsertElement"));
}

TEST_F(Highlight, MarksTenThousandHits)
{
    constexpr size_t nHits = 10000;
    const auto marks = Mark(L"<p>" + Repeat(L"some text with a word in it. ", nHits) + L"</p>", L"WORD");
    EXPECT_EQ(nHits, marks.size());
    EXPECT_EQ(nHits + 1, CFakeCalls::Get().CountOf("MarkupPointer.FindText"));
    EXPECT_EQ(nHits, CFakeCalls::Get().CountOf("MarkupPointer.MoveToPointer"));
}

TEST_F(Highlight, MarksWhatIsInAMarkAlready)
{
    Mark(L"a word", L"word");
    EXPECT_TRUE(GetItem(Box).Search(L"or"));
    EXPECT_THAT(GetMarks(*m_spPage.Get()), ElementsAre(L"word", L"or"));
}

TEST_F(Highlight, MarksFramesAndTheirFrames)
{
    CFakeHtmlDocument& page = ShowPage(L"a word");
    const auto spFirst = MakeDocument(L"word word");
    const auto spInner = MakeDocument(L"<p>word</p>");
    const auto spLast = MakeDocument(L"no hit");
    page.AddFrame(spFirst.Get());
    spFirst->AddFrame(spInner.Get());
    page.AddFrame(spLast.Get());
    EXPECT_TRUE(GetItem(Box).Search(L"word"));
    EXPECT_THAT(GetMarks(page), ElementsAre(L"word"));
    EXPECT_THAT(GetMarks(*spFirst.Get()), ElementsAre(L"word", L"word"));
    EXPECT_THAT(GetMarks(*spInner.Get()), ElementsAre(L"word"));
    EXPECT_THAT(GetMarks(*spLast.Get()), IsEmpty());
}

TEST_F(Highlight, MarksTheFramesOfAFrameset)
{
    CFakeHtmlDocument& page = ShowPage(L"<frameset cols=\"*,*\"><frame><frame></frameset>");
    const auto spFirst = MakeDocument(L"word");
    const auto spSecond = MakeDocument(L"word");
    page.AddFrame(spFirst.Get());
    page.AddFrame(spSecond.Get());
    EXPECT_TRUE(GetItem(Box).Search(L"word"));
    EXPECT_THAT(GetMarks(page), IsEmpty());
    EXPECT_THAT(GetMarks(*spFirst.Get()), ElementsAre(L"word"));
    EXPECT_THAT(GetMarks(*spSecond.Get()), ElementsAre(L"word"));
}

TEST_F(Highlight, StepsOverAFrameThatDeniesAccess)
{
    CFakeHtmlDocument& page = ShowPage(L"");
    const auto spBefore = MakeDocument(L"word");
    const auto spDenied = MakeDocument(L"word");
    const auto spBehind = MakeDocument(L"word");
    page.AddFrame(spBefore.Get());
    page.AddFrame(spDenied.Get()).Deny();
    page.AddFrame(spBehind.Get());
    EXPECT_TRUE(GetItem(Box).Search(L"word"));
    EXPECT_THAT(GetMarks(*spBefore.Get()), ElementsAre(L"word"));
    EXPECT_THAT(GetMarks(*spDenied.Get()), IsEmpty());
    EXPECT_THAT(GetMarks(*spBehind.Get()), ElementsAre(L"word"));
}

TEST_F(Highlight, StepsOverAFrameThatIsNone)
{
    CFakeHtmlDocument& page = ShowPage(L"");
    const auto spBehind = MakeDocument(L"word");
    page.m_windows.push_back(nullptr);
    page.AddFrame(nullptr);
    page.AddFrame(spBehind.Get());
    EXPECT_TRUE(GetItem(Box).Search(L"word"));
    EXPECT_THAT(GetMarks(*spBehind.Get()), ElementsAre(L"word"));
}

TEST_F(Highlight, StepsOverAFrameThatIsNoWindow)
{
    CFakeHtmlDocument& page = ShowPage(L"");
    const auto spNone = MakeDocument(L"word");
    const auto spBehind = MakeDocument(L"word");
    page.AddFrame(spNone.Get()).Lack(IID_IHTMLWindow2);
    page.AddFrame(spBehind.Get());
    EXPECT_TRUE(GetItem(Box).Search(L"word"));
    EXPECT_THAT(GetMarks(*spNone.Get()), IsEmpty());
    EXPECT_THAT(GetMarks(*spBehind.Get()), ElementsAre(L"word"));
}

TEST_F(Highlight, GoesThroughDeepFrames)
{
    std::vector<ComPtr<CFakeHtmlDocument>> documents = {&ShowPage(L"word")};
    for (int n = 0; n < 100; ++n)
    {
        documents.push_back(MakeDocument(L"word"));
        documents[n]->AddFrame(documents[n + 1].Get());
    }
    EXPECT_TRUE(GetItem(Box).Search(L"word"));
    for (const auto& spDocument : documents)
        EXPECT_THAT(GetMarks(*spDocument.Get()), ElementsAre(L"word"));
}

TEST_F(Highlight, MarksTheFramesOfADocumentThatCanNotBeSearched)
{
    CFakeHtmlDocument& page = ShowPage(L"word");
    const auto spFrame = MakeDocument(L"word");
    page.AddFrame(spFrame.Get());
    page.Lack(IID_IMarkupServices);
    EXPECT_TRUE(GetItem(Box).Search(L"word"));
    EXPECT_THAT(GetMarks(page), IsEmpty());
    EXPECT_THAT(GetMarks(*spFrame.Get()), ElementsAre(L"word"));
}

TEST_F(Highlight, EndsInADocumentWhereAMarkFailsAndGoesOnInTheNext)
{
    CFakeHtmlDocument& page = ShowPage(L"word word word");
    const auto spFrame = MakeDocument(L"word");
    page.AddFrame(spFrame.Get());
    CFakeCalls::Get().FailAll("MarkupPointer.MoveToPointer", E_FAIL);
    EXPECT_TRUE(GetItem(Box).Search(L"word"));
    EXPECT_THAT(GetMarks(page), ElementsAre(L"word"));
    EXPECT_THAT(GetMarks(*spFrame.Get()), ElementsAre(L"word"));
}

TEST_F(Highlight, EndsAtTheFirstCallThatFails)
{
    CFakeCalls& calls = CFakeCalls::Get();
    for (const char* pszCall : {"HtmlDocument.CreateElement", "HtmlDocument.InsertElement", "MarkupPointer.FindText"})
    {
        ShowPage(L"word word word");
        calls.Reset();
        calls.ActIn("MarkupPointer.MoveToPointer", [&] { calls.FailAll(pszCall, E_FAIL); });
        EXPECT_TRUE(GetItem(Box).Search(L"word"));
        EXPECT_THAT(GetMarks(*m_spPage.Get()), ElementsAre(L"word")) << pszCall;
        EXPECT_EQ(2u, calls.CountOf("MarkupPointer.FindText")) << pszCall;
        EXPECT_EQ(1u, calls.CountOf("MarkupPointer.MoveToPointer")) << pszCall;
    }
}

TEST_F(Highlight, MakesItsCallsInOrder)
{
    ShowPage(L"a word");
    CFakeCalls::Get().ClearLog();
    GetItem(Box).Search(L"word");
    EXPECT_THAT(CFakeCalls::Get().GetNames(),
                ElementsAre("WebBrowser.get_Document", "HtmlDocument.CreateMarkupPointer",
                            "HtmlDocument.CreateMarkupPointer", "MarkupPointer.SetGravityRight",
                            "MarkupPointer.SetGravityLeft", "MarkupPointer.MoveToContainer",
                            "MarkupPointer.MoveToContainer", "MarkupPointer.FindText", "HtmlDocument.CreateElement",
                            "HtmlDocument.InsertElement", "MarkupPointer.MoveToPointer", "MarkupPointer.FindText",
                            "HtmlDocument.get_frames", "FramesCollection.get_length"));
}

TEST_F(Highlight, SurvivesThatThePageGoesMeanwhile)
{
    ShowPage(L"a word and a word");
    CFakeCalls::Get().ActIn("MarkupPointer.FindText", [&] { ShowPage(L"another word"); });
    EXPECT_TRUE(GetItem(Box).Search(L"word"));
    EXPECT_THAT(GetMarks(*m_spPage.Get()), IsEmpty());
}
