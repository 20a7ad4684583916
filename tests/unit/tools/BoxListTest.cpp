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

    COMBOBOXINFO GetInfo()
    {
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        EXPECT_TRUE(GetComboBoxInfo(GetBox(Box), &info));
        return info;
    }

    /// Presses and releases a key in the edit field, through the band as the browser does it.
    void Key(UINT nKey)
    {
        PressKey(Box, nKey);
        PumpMessages();
    }

    static void Click(HWND hWnd, POINT point)
    {
        const LPARAM lParam = MAKELPARAM(point.x, point.y);
        SendMessageW(hWnd, WM_MOUSEMOVE, 0, lParam);
        SendMessageW(hWnd, WM_LBUTTONDOWN, MK_LBUTTON, lParam);
        SendMessageW(hWnd, WM_LBUTTONUP, 0, lParam);
    }

    void ClickArrow()
    {
        const RECT rect = GetInfo().rcButton;
        Click(GetBox(Box), {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2});
    }

    void ClickEntry(int nEntry)
    {
        const HWND hWndList = GetInfo().hwndList;
        RECT rect = {};
        SendMessageW(hWndList, LB_GETITEMRECT, nEntry, reinterpret_cast<LPARAM>(&rect));
        Click(hWndList, {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2});
    }

    bool IsDropped() { return SendMessageW(GetBox(Box), CB_GETDROPPEDSTATE, 0, 0) != 0; }

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
    ClickArrow();
    ASSERT_TRUE(IsDropped());
    ClickEntry(0);
    EXPECT_FALSE(IsDropped());
    EXPECT_THAT(TakeSearches(), testing::UnorderedElementsAre(L"first", L"typed"));
    EXPECT_EQ(L"first", GetBoxText(Box));
}

TEST_F(BoxList, SearchesOnceWhenTheLastEntryIsClicked)
{
    ClickArrow();
    ClickEntry(2);
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
    ASSERT_TRUE(IsDropped());
    Key(VK_ESCAPE);
    EXPECT_FALSE(IsDropped());
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
    ClickArrow();
    ClickEntry(1);
    EXPECT_THAT(TakeSearches(), ElementsAre(L"second"));
}

TEST_F(BoxList, SurvivesThatASelectionMakesAllItemsAnew)
{
    const HWND hWndBox = GetBox(Box);
    CFakeCalls::Get().ActIn("WebBrowser.Navigate", [&] { GetToolbar().LoadLayout(); });
    SendMessageW(hWndBox, CB_SETCURSEL, 0, 0);
    SendMessageW(GetBandWindow(), WM_COMMAND, MAKEWPARAM(Box, CBN_SELCHANGE), reinterpret_cast<LPARAM>(hWndBox));
    EXPECT_THAT(TakeSearches(), ElementsAre(L"first"));
    EXPECT_FALSE(IsWindow(hWndBox));
    EXPECT_EQ(L"Google Search (Alt+Q)", GetBoxText(Box));
}

TEST_F(BoxList, SurvivesThatAClickMakesAllItemsAnew)
{
    const HWND hWndBox = GetBox(Box);
    SetWindowTextW(hWndBox, L"typed");
    CFakeCalls::Get().ActIn("WebBrowser.Navigate", [&] { GetToolbar().LoadLayout(); });
    ClickArrow();
    ClickEntry(0);
    EXPECT_FALSE(IsWindow(hWndBox));
    EXPECT_EQ(L"Google Search (Alt+Q)", GetBoxText(Box));
}
