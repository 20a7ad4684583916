// Highlight and zoom on pages of the engine, by the word of the pages themselves.

#include "tests/unit/bench/EnginePage.h"
#include "tools/PageHighlight.h"
#include "tools/PageZoom.h"

#include <gmock/gmock.h>

using Microsoft::WRL::ComPtr;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{
std::string Repeat(const std::string& strText, int nTimes)
{
    std::string strRepeated;
    for (int n = 0; n < nTimes; ++n)
        strRepeated += strText;
    return strRepeated;
}

/// A page with two frames of its own, one of another origin between them, and a frame in the first.
class ToolsOnPage : public testing::Test
{
protected:
    ToolsOnPage() : m_page(CEnginePage::Get()) {}

    ComPtr<IHTMLDocument2> LoadPageWithFrames()
    {
        m_page.Serve("/inner.html", "<body><p>an inner word</p></body>");
        m_page.Serve("/first.html", "<body><p>a first word</p><iframe src=/inner.html></iframe></body>");
        m_page.Serve("/foreign.html", "<body><p>a foreign word</p></body>");
        m_page.Serve("/last.html", "<body><p>a last word</p><div id=box style='width:100px;height:20px'></div></body>");
        const std::string strForeign = ToUtf8(CEnginePage::ForeignUrlOf(L"/foreign.html"));
        return m_page.LoadSource("<body><p>a word</p><div id=box style='width:100px;height:20px'></div>"
                                 "<iframe src=/first.html></iframe><iframe src=" +
                                 strForeign + "></iframe><iframe src=/last.html></iframe></body>");
    }

    /// The texts of the marks in the document that a script gives.
    std::vector<std::wstring> GetMarks(const std::wstring& strDocument = L"document")
    {
        return m_page.GetScriptTexts(strDocument + L".querySelectorAll('font')", L"textContent");
    }

    /// The third frame's, in the page.
    static constexpr wchar_t FrameWidth[] = L"document.querySelectorAll('iframe')[2].getBoundingClientRect().width";

    double GetBoxWidth(const std::wstring& strDocument)
    {
        return GetNumber(strDocument + L".getElementById('box').getBoundingClientRect().width");
    }

    double GetNumber(const std::wstring& strScript) { return m_page.Run(strScript).get<double>(); }

    CEnginePage& m_page;
};
} // namespace

TEST_F(ToolsOnPage, HighlightMarksEachHitInBlackOnYellow)
{
    const auto spDocument = m_page.LoadSource("<p>a Word and a w<b>or</b>d</p><script>var word;</script>");
    EXPECT_TRUE(HighlightFrames(L"word", spDocument.Get()));
    EXPECT_EQ(L"a Word and a word", m_page.GetScriptText(L"document.querySelector('p').textContent"));
    EXPECT_EQ(L"rgb(0, 0, 0) on rgb(255, 255, 0)",
              m_page.GetScriptText(L"[...new Set(Array.from(document.querySelectorAll('font'), (font) => "
                                   L"getComputedStyle(font).color + ' on ' + getComputedStyle(font).backgroundColor))]"
                                   L".join()"));
}

TEST_F(ToolsOnPage, HighlightGoesThroughFramesAndPastAForeignOne)
{
    const auto spDocument = LoadPageWithFrames();
    EXPECT_TRUE(HighlightFrames(L"word", spDocument.Get()));
    EXPECT_THAT(GetMarks(), ElementsAre(L"word"));
    EXPECT_THAT(GetMarks(L"frames[0].document"), ElementsAre(L"word"));
    EXPECT_THAT(GetMarks(L"frames[0].frames[0].document"), ElementsAre(L"word"));
    EXPECT_THAT(GetMarks(L"frames[2].document"), ElementsAre(L"word"));
}

TEST_F(ToolsOnPage, HighlightMarksTheFramesOfAFrameset)
{
    m_page.Serve("/left.html", "<body>a word</body>");
    m_page.Serve("/right.html", "<body>another word</body>");
    const auto spDocument =
        m_page.LoadSource("<frameset cols='*,*'><frame src=/left.html><frame src=/right.html></frameset>");
    EXPECT_TRUE(HighlightFrames(L"word", spDocument.Get()));
    EXPECT_THAT(GetMarks(L"frames[0].document"), ElementsAre(L"word"));
    EXPECT_THAT(GetMarks(L"frames[1].document"), ElementsAre(L"word"));
}

TEST_F(ToolsOnPage, HighlightMarksTenThousandHits)
{
    constexpr int nHits = 10000;
    const auto spDocument =
        m_page.LoadSource(Repeat("<p>A line with a <i>wo</i>rd, or two words, and more text.</p>\n", nHits / 2));
    EXPECT_TRUE(HighlightFrames(L"word", spDocument.Get()));
    EXPECT_THAT(GetMarks(), SizeIs(nHits + nHits / 2)) << "one of two is in two parts";
    EXPECT_EQ(true, m_page.Run(L"Array.from(document.querySelectorAll('font'), (each) => "
                               L"each.textContent).join('') === 'word'.repeat(10000)"));
    EXPECT_EQ(true, m_page.Run(L"Array.from(document.querySelectorAll('p')).every((each) => each.textContent === 'A "
                               L"line with a word, or two words, and more text.')"));
}

TEST_F(ToolsOnPage, HighlightFindsWordsOfAnyLength)
{
    for (const int nLength : {1, 127, 128, 5000})
    {
        const std::wstring strWord(nLength, L'\x5B57');
        const auto spDocument = m_page.LoadSource("<p>a" + ToUtf8(strWord) + "b</p>");
        EXPECT_TRUE(HighlightFrames(strWord, spDocument.Get()));
        EXPECT_THAT(GetMarks(), ElementsAre(strWord)) << nLength;
    }
}

TEST_F(ToolsOnPage, HighlightLeavesAPageWithoutAHit)
{
    const auto spDocument = m_page.LoadSource("<p id=p>text</p>");
    EXPECT_TRUE(HighlightFrames(L"word", spDocument.Get()));
    EXPECT_EQ(L"text", m_page.GetScriptText(L"document.getElementById('p').innerHTML"));
    EXPECT_THAT(GetMarks(), IsEmpty());
}

TEST_F(ToolsOnPage, ZoomScalesThePageAndBack)
{
    const auto spDocument = LoadPageWithFrames();
    for (const long nPercent : {150, 80, 10, 999, 100})
    {
        EXPECT_TRUE(ZoomDocument(spDocument.Get(), nPercent, false));
        EXPECT_NEAR(nPercent, GetBoxWidth(L"document"), 0.1);
        EXPECT_EQ(1, GetNumber(L"document.querySelectorAll('#__hw__trelvix__zoom__').length"));
    }
}

TEST_F(ToolsOnPage, ZoomScalesTheContentOfAFrameOnce)
{
    const auto spDocument = LoadPageWithFrames();
    const double nFrameWidth = GetNumber(FrameWidth);
    for (const long nPercent : {150, 200, 50, 100})
    {
        EXPECT_TRUE(ZoomDocument(spDocument.Get(), nPercent, false));
        // The page scales the frame with all that is in it.
        const double nScaleOfFrame = GetNumber(FrameWidth) / nFrameWidth;
        EXPECT_NEAR(nPercent / 100.0, nScaleOfFrame, 0.01);
        EXPECT_NEAR(nPercent, GetBoxWidth(L"frames[2].document") * nScaleOfFrame, nPercent * 0.02);
    }
}

TEST_F(ToolsOnPage, ZoomKeepsTheContentAndItsFrames)
{
    const auto spDocument = LoadPageWithFrames();
    m_page.Run(L"frames[0].mark = 'not loaded again'; document.getElementById('box').mark = 'not made again'");
    EXPECT_TRUE(ZoomDocument(spDocument.Get(), 150, false));
    EXPECT_EQ(L"not loaded again", m_page.GetScriptText(L"frames[0].mark"));
    EXPECT_EQ(L"not made again", m_page.GetScriptText(L"document.getElementById('box').mark"));
    EXPECT_EQ(1, GetNumber(L"document.body.childElementCount"));
}

TEST_F(ToolsOnPage, ZoomScalesATopLevelFrameset)
{
    m_page.Serve("/left.html", "<body><div id=box style='width:100px'>text</div></body>");
    const auto spDocument = m_page.LoadSource("<frameset cols='*'><frame src=/left.html></frameset>");
    EXPECT_TRUE(ZoomDocument(spDocument.Get(), 150, false));
    EXPECT_EQ(L"1.5", m_page.GetScriptText(L"getComputedStyle(document.body).zoom"));
    EXPECT_EQ(0, GetNumber(L"document.querySelectorAll('#__hw__trelvix__zoom__').length"));
    EXPECT_NEAR(100, GetBoxWidth(L"frames[0].document"), 1.5);
}

TEST_F(ToolsOnPage, ZoomMakesASecondWrapperWhenAScriptDisplacesTheFirst)
{
    const auto spDocument = m_page.LoadSource("<div id=box style='width:100px'>text</div>");
    EXPECT_TRUE(ZoomDocument(spDocument.Get(), 150, false));
    m_page.Run(L"document.body.prepend(document.createElement('p'))");
    EXPECT_TRUE(ZoomDocument(spDocument.Get(), 200, false));
    EXPECT_EQ(1, GetNumber(L"document.querySelectorAll("
                           L"'#__hw__trelvix__zoom__ > #__hw__trelvix__zoom__ #box').length"));
    EXPECT_NEAR(300, GetBoxWidth(L"document"), 0.1) << "the factors multiply";
}

TEST_F(ToolsOnPage, ZoomLeavesAFramesetInAFrameAndScalesItsFrames)
{
    m_page.Serve("/inner.html", "<body><p>inner</p></body>");
    m_page.Serve("/frames.html", "<frameset cols='*'><frame src=/inner.html></frameset>");
    const auto spDocument = m_page.LoadSource("<body><iframe src=/frames.html></iframe></body>");
    EXPECT_TRUE(ZoomDocument(spDocument.Get(), 150, false));
    EXPECT_EQ(L"", m_page.GetScriptText(L"frames[0].document.body.style.zoom"));
    EXPECT_EQ(0, GetNumber(L"frames[0].document.querySelectorAll('div').length"));
    EXPECT_EQ(L"66%", m_page.GetScriptText(L"frames[0].frames[0].document.body.style.zoom"));
    EXPECT_EQ(L"150%", m_page.GetScriptText(L"frames[0].frames[0].document.body.firstElementChild.style.zoom"));
}
