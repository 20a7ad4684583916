#include "tools/ButtonSearchInPage.h"

#include "band/ButtonIndex.h"
#include "band/TrelvixWindow.h"
#include "tests/unit/tools/ToolbarFixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
constexpr int Box = SearchInPageIndex;

std::vector<std::wstring> GetMarks(const CFakeHtmlDocument& document)
{
    return document.GetTextsOf(L"FONT");
}

/// The box itself: its list, and when it works.
using HighlightBox = CToolbarTest;
} // namespace

TEST_F(HighlightBox, MarksTheWordOnEnter)
{
    ShowPage(L"<p>one two one</p>");
    Enter(Box, L"one");
    EXPECT_THAT(GetMarks(*m_spPage.Get()), ElementsAre(L"one", L"one"));
    EXPECT_THAT(m_spBrowser->m_navigations, IsEmpty());
}

TEST_F(HighlightBox, NestsASecondMarkInTheFirst)
{
    ShowPage(L"a word");
    Enter(Box, L"word");
    Enter(Box, L"word");
    const auto fonts = m_spPage->GetMarkup()->GetElements(L"FONT");
    ASSERT_EQ(2u, fonts.size());
    EXPECT_EQ(std::next(fonts[0]->begin), fonts[1]->begin);
    EXPECT_EQ(std::next(fonts[1]->end), fonts[0]->end);
    EXPECT_THAT(GetEntries(Box), ElementsAre(L"word"));
}

TEST_F(HighlightBox, SurvivesThatItsItemGoesMeanwhile)
{
    for (const char* pszCall : {"WebBrowser.get_Document", "MarkupPointer.FindText", "FramesCollection.get_length"})
    {
        ShowPage(L"a word and a word");
        Type(Box, L"word");
        CFakeCalls::Get().ActIn(pszCall, [&] { GetToolbar().LoadLayout(); });
        EXPECT_EQ(S_OK, PressKey(Box, VK_RETURN));
        EXPECT_THAT(GetMarks(*m_spPage.Get()), ElementsAre(L"word", L"word")) << pszCall;
    }
}

TEST_F(HighlightBox, DoesNothingForAnEmptyBox)
{
    ShowPage(L"a word");
    Enter(Box, L"");
    EXPECT_FALSE(GetItem(Box).Search(L""));
    EXPECT_THAT(GetEntries(Box), IsEmpty());
    EXPECT_EQ(0u, CFakeCalls::Get().CountOf("WebBrowser.get_Document"));
}

TEST_F(HighlightBox, RemembersTheWordsNewestOnTopWithoutLimit)
{
    ShowPage(L"");
    for (int n = 1; n <= 30; ++n)
        Enter(Box, L"word" + std::to_wstring(n));
    Enter(Box, L"WORD7");
    const auto entries = GetEntries(Box);
    ASSERT_EQ(30u, entries.size());
    EXPECT_EQ(L"word30", entries.front());
    EXPECT_EQ(L"word1", entries.back());
}

TEST_F(HighlightBox, ForgetsTheWordsWithTheItem)
{
    Enter(Box, L"word");
    GetToolbar().LoadLayout();
    EXPECT_THAT(GetEntries(Box), IsEmpty());
    EXPECT_EQ(L"Highlight in page", GetBoxText(Box));
}

TEST_F(HighlightBox, RunsTwiceForAnEntryAndOnceForTheLast)
{
    Enter(Box, L"one");
    Enter(Box, L"two");
    ShowPage(L"one two");
    for (const int nEntry : {0, 1})
    {
        SendMessageW(GetBox(Box), CB_SETCURSEL, nEntry, 0);
        for (const WORD nCode : {CBN_SELENDOK, CBN_SELCHANGE})
            SendMessageW(GetBandWindow(), WM_COMMAND, MAKEWPARAM(Box, nCode), reinterpret_cast<LPARAM>(GetBox(Box)));
    }
    EXPECT_THAT(GetMarks(*m_spPage.Get()), ElementsAre(L"one", L"two", L"two"));
}

TEST_F(HighlightBox, FailsWithoutAPageAndStillRemembersTheWord)
{
    m_spBrowser->m_spDocument.Reset();
    EXPECT_FALSE(GetItem(Box).Search(L"null"));
    m_spBrowser->m_spDocument = m_spBrowser->AsFrame();
    EXPECT_FALSE(GetItem(Box).Search(L"no page"));
    m_spBrowser->m_spDocument.Reset();
    CFakeCalls::Get().FailAll("WebBrowser.get_Document", E_FAIL);
    EXPECT_FALSE(GetItem(Box).Search(L"failure"));
    EXPECT_THAT(GetEntries(Box), ElementsAre(L"failure", L"no page", L"null"));
}

TEST_F(HighlightBox, FailsWithoutABrowser)
{
    GetToolbar().SetWebBrowser(nullptr);
    EXPECT_FALSE(GetItem(Box).Search(L"word"));
    EXPECT_THAT(GetEntries(Box), ElementsAre(L"word"));
    GetToolbar().SetWebBrowser(m_spBrowser.Get());
}

TEST(HighlightItem, FailsWithoutAToolbar)
{
    CButtonSearchInPage item;
    EXPECT_TRUE(item.Initialize(nullptr));
    EXPECT_EQ(SearchInPageIndex, item.GetButtonId());
    EXPECT_FALSE(item.Search(L"word"));
}
