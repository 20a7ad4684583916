#include "band/ButtonIndex.h"
#include "band/TrelvixWindow.h"
#include "tests/unit/tools/ToolbarFixture.h"
#include "tools/ButtonSearchWeb.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
constexpr int Box = SearchGoogleIndex;

/// The list of a box under the user's keys and mouse. Each search shows as a navigation.
class BoxList : public CToolbarTest
{
protected:
    BoxList() { StoreSetting(L"Button3", L"WebSearchURL", L"%%WORD%%"); }
    ~BoxList() override { StoreSetting(L"Button3", L"WebSearchURL", L""); }

    void SetUp() override
    {
        CToolbarTest::SetUp();
        for (const wchar_t* pszWord : {L"first", L"second", L"last"})
            SendMessageW(GetBox(Box), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(pszWord));
        GetItem(Box).TakeFocus();
    }

    /// The control's word of a change of its selection.
    void Notify(WORD wCode)
    {
        SendMessageW(GetBandWindow(), WM_COMMAND, MAKEWPARAM(Box, wCode), reinterpret_cast<LPARAM>(GetBox(Box)));
    }

    /// Presses and releases a key in the edit field, through the band as the browser does it.
    void Key(UINT nKey)
    {
        PressKey(Box, nKey);
        PumpMessages();
    }

    std::vector<std::wstring> TakeSearches()
    {
        std::vector<std::wstring> searches;
        for (const auto& navigation : m_spBrowser->m_navigations)
            searches.push_back(navigation.strUrl);
        m_spBrowser->m_navigations.clear();
        return searches;
    }
};
} // namespace

TEST_F(BoxList, SearchesOnceByTheEntryAndOnceByTheFieldWhenAnEntryIsClicked)
{
    SetWindowTextW(GetBox(Box), L"typed");
    ClickArrow(Box);
    ASSERT_TRUE(IsDropped(Box));
    ClickEntry(Box, 0);
    EXPECT_FALSE(IsDropped(Box));
    // The control tells of the end of the selection before its field changes.
    EXPECT_THAT(TakeSearches(), ElementsAre(L"typed", L"first"));
    EXPECT_EQ(L"first", GetBoxText(Box));
}

TEST_F(BoxList, SearchesOnceWhenTheLastEntryIsClicked)
{
    ClickArrow(Box);
    ClickEntry(Box, 2);
    EXPECT_THAT(TakeSearches(), ElementsAre(L"last"));
}

TEST_F(BoxList, SearchesAtEachStepOfAnArrowKey)
{
    Key(VK_DOWN);
    EXPECT_EQ(L"first", GetBoxText(Box));
    EXPECT_THAT(TakeSearches(), testing::Contains(L"first"));
    Key(VK_DOWN);
    EXPECT_EQ(L"second", GetBoxText(Box));
    EXPECT_THAT(TakeSearches(), testing::Contains(L"second"));
    Key(VK_DOWN);
    EXPECT_EQ(L"last", GetBoxText(Box));
    EXPECT_THAT(TakeSearches(), ElementsAre(L"last"));
    Key(VK_UP);
    EXPECT_THAT(TakeSearches(), testing::Contains(L"second"));
}

TEST_F(BoxList, OpensByF4AndSearchesForNothingWhenItClosesWithoutASelection)
{
    Key(VK_F4);
    ASSERT_TRUE(IsDropped(Box));
    Key(VK_ESCAPE);
    EXPECT_FALSE(IsDropped(Box));
    EXPECT_THAT(TakeSearches(), IsEmpty());
}

TEST_F(BoxList, SearchesWhileTheUserGoesThroughTheOpenList)
{
    Key(VK_F4);
    Key(VK_DOWN);
    EXPECT_THAT(TakeSearches(), ElementsAre(L"first"));
    Key(VK_DOWN);
    EXPECT_THAT(TakeSearches(), ElementsAre(L"second"));
}

TEST_F(BoxList, SearchesForTheTypedTextOnEnter)
{
    SetWindowTextW(GetBox(Box), L"typed");
    Key(VK_RETURN);
    EXPECT_THAT(TakeSearches(), ElementsAre(L"typed"));
}

TEST_F(BoxList, SearchesOnceByAnEntryOfAnEmptyField)
{
    ClickArrow(Box);
    ClickEntry(Box, 1);
    EXPECT_THAT(TakeSearches(), ElementsAre(L"second"));
}

TEST_F(BoxList, SearchesForNothingWithoutASelection)
{
    SetWindowTextW(GetBox(Box), L"typed");
    SendMessageW(GetBox(Box), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    Notify(CBN_SELCHANGE);
    EXPECT_THAT(TakeSearches(), IsEmpty());
}

TEST_F(BoxList, RunsTheFieldWhenTheSelectionEndsWithoutAnEntry)
{
    SendMessageW(GetBox(Box), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    SetWindowTextW(GetBox(Box), L"typed");
    Notify(CBN_SELENDOK);
    EXPECT_THAT(TakeSearches(), ElementsAre(L"typed"));
}

TEST_F(BoxList, RunsNothingWhenTheSelectionEndsInAnEmptyList)
{
    SendMessageW(GetBox(Box), CB_RESETCONTENT, 0, 0);
    SetWindowTextW(GetBox(Box), L"typed");
    Notify(CBN_SELENDOK);
    EXPECT_THAT(TakeSearches(), IsEmpty());
}

TEST_F(BoxList, SurvivesThatASelectionMakesAllItemsAnew)
{
    const HWND hWndBox = GetBox(Box);
    CFakeCalls::Get().ActIn("WebBrowser.Navigate", [&] { GetToolbar().LoadLayout(); });
    SendMessageW(hWndBox, CB_SETCURSEL, 0, 0);
    Notify(CBN_SELCHANGE);
    EXPECT_THAT(TakeSearches(), ElementsAre(L"first"));
    EXPECT_FALSE(IsWindow(hWndBox));
    EXPECT_EQ(L"Google Search (Alt+Q)", GetBoxText(Box));
}

TEST_F(BoxList, SurvivesThatAClickMakesAllItemsAnew)
{
    const HWND hWndBox = GetBox(Box);
    SetWindowTextW(hWndBox, L"typed");
    CFakeCalls::Get().ActIn("WebBrowser.Navigate", [&] { GetToolbar().LoadLayout(); });
    ClickArrow(Box);
    ClickEntry(Box, 0);
    EXPECT_FALSE(IsWindow(hWndBox));
    EXPECT_EQ(L"Google Search (Alt+Q)", GetBoxText(Box));
}
