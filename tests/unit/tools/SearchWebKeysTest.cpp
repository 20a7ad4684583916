#include "band/ButtonIndex.h"
#include "tests/unit/tools/ToolbarFixture.h"
#include "tools/ButtonSearchWeb.h"

namespace
{
constexpr int Box = SearchGoogleIndex;

/// What the search box does with the keys that the browser offers to the band.
class SearchWebKeys : public CToolbarTest
{
protected:
    HWND GetEdit() { return GetWindow(GetBox(Box), GW_CHILD); }
};
} // namespace

TEST_F(SearchWebKeys, TakesEnterOfAnyMessageAndClearsTheKey)
{
    Type(Box, L"word");
    for (const UINT nMessage : {WM_KEYDOWN, WM_CHAR, WM_KEYUP, WM_SYSKEYDOWN})
    {
        MSG message = {GetEdit(), nMessage, VK_RETURN, 1, 0, {}};
        EXPECT_EQ(S_OK, GetItem(Box).TranslateKey(&message));
        EXPECT_EQ(0u, message.wParam);
    }
    EXPECT_EQ(4u, m_spBrowser->m_navigations.size());
}

TEST_F(SearchWebKeys, GetsTheKeysThatTheBrowserWouldTake)
{
    Type(Box, L"word");
    SendMessageW(GetEdit(), EM_SETSEL, 4, 4);
    EXPECT_EQ(S_OK, PressKey(Box, VK_BACK));
    PumpMessages();
    EXPECT_EQ(L"wor", GetBoxText(Box));
}

TEST_F(SearchWebKeys, GetsTheCharactersOfItsKeys)
{
    Type(Box, L"");
    EXPECT_EQ(S_OK, PressKey(Box, 'A'));
    PumpMessages();
    EXPECT_EQ(L"a", GetBoxText(Box));
}

TEST_F(SearchWebKeys, MovesOnToTheNextItemByTab)
{
    GetItem(Box).TakeFocus();
    EXPECT_EQ(S_OK, PressKey(Box, VK_TAB));
    EXPECT_FALSE(GetItem(Box).HasFocus());
    EXPECT_TRUE(GetItem(SearchInPageIndex).HasFocus());
}

TEST_F(SearchWebKeys, LeavesTheFocusToTheHostWhenNoItemFollows)
{
    GetItem(SearchInPageIndex).TakeFocus();
    EXPECT_EQ(S_FALSE, PressKey(SearchInPageIndex, VK_TAB));
    EXPECT_TRUE(GetItem(SearchInPageIndex).HasFocus());
}

TEST_F(SearchWebKeys, MovesBackByTabWithShift)
{
    BYTE keys[256] = {};
    GetKeyboardState(keys);
    keys[VK_SHIFT] = 0x80;
    SetKeyboardState(keys);
    GetItem(SearchInPageIndex).TakeFocus();
    EXPECT_EQ(S_OK, PressKey(SearchInPageIndex, VK_TAB));
    EXPECT_TRUE(GetItem(Box).HasFocus());
    EXPECT_EQ(S_OK, PressKey(Box, VK_TAB));
    EXPECT_TRUE(GetItem(ZoomIndex).HasFocus());
    EXPECT_EQ(S_FALSE, PressKey(ZoomIndex, VK_TAB));
    keys[VK_SHIFT] = 0;
    SetKeyboardState(keys);
}

TEST_F(SearchWebKeys, TakesOnlyThePressOfTabForAMove)
{
    GetItem(Box).TakeFocus();
    MSG message = {GetEdit(), WM_KEYUP, VK_TAB, 1, 0, {}};
    EXPECT_EQ(S_OK, GetItem(Box).TranslateKey(&message));
    EXPECT_TRUE(GetItem(Box).HasFocus());
}
