#include "framework/Menu.h"
#include "resources/resource.h"
#include "tests/unit/settings/LanguageFixture.h"

#include <windows.h>
#include <gtest/gtest.h>

#include <string>

namespace
{
class TranslatedMenu : public CLanguageTest
{
protected:
    static std::wstring TextAt(HMENU hMenu, int nPosition)
    {
        wchar_t szText[200] = {};
        GetMenuStringW(hMenu, nPosition, szText, ARRAYSIZE(szText), MF_BYPOSITION);
        return szText;
    }
};

using COwnMenu = CUniqueHandle<HMENU, DestroyMenu>;
} // namespace

TEST_F(TranslatedMenu, HasTheBuiltInTextsWithoutAPack)
{
    CMenu menu;
    ASSERT_TRUE(LoadTranslatedMenu(menu, IDR_COLORPICKER_MENU));
    EXPECT_EQ(L"Open Windows Color Dialog", TextAt(GetSubMenu(menu, 0), 0));
}

TEST_F(TranslatedMenu, HasThePacksTextsInItsSubmenu)
{
    LoadText(L"213:Trelvix anpassen\n208:\x00DC"
             L"ber Trelvix ...\n");
    CMenu menu;
    ASSERT_TRUE(LoadTranslatedMenu(menu, IDR_ROOT_MENU));
    const HMENU hEntries = GetSubMenu(menu, 0);
    EXPECT_EQ(L"Trelvix anpassen", TextAt(hEntries, 0));
    EXPECT_EQ(UINT {IDM_ROOT_CUSTOMIZE}, GetMenuItemID(hEntries, 0));
    EXPECT_EQ(L"Check for a new version", TextAt(hEntries, 1));
    EXPECT_EQ(L"\x00DC"
              L"ber Trelvix ...",
              TextAt(hEntries, 9));
}

TEST_F(TranslatedMenu, KeepsItsSeparators)
{
    LoadText(L"213:a\n208:b\n");
    CMenu menu;
    ASSERT_TRUE(LoadTranslatedMenu(menu, IDR_ROOT_MENU));
    const HMENU hEntries = GetSubMenu(menu, 0);
    EXPECT_EQ(10, GetMenuItemCount(hEntries));
    for (const int nPosition : {2, 6, 8})
        EXPECT_TRUE(GetMenuState(hEntries, nPosition, MF_BYPOSITION) & MF_SEPARATOR) << nPosition;
}

TEST_F(TranslatedMenu, IsNoneWithoutAResource)
{
    CMenu menu;
    EXPECT_FALSE(LoadTranslatedMenu(menu, 9999));
    EXPECT_EQ(nullptr, menu.GetSafeHmenu());
}

TEST_F(TranslatedMenu, IsTranslatedAtEveryDepth)
{
    LoadText(L"263:new\n");
    const COwnMenu menu(CreatePopupMenu());
    HMENU hDeepest = menu.get();
    for (int nDepth = 0; nDepth < 5; ++nDepth)
    {
        const HMENU hInner = CreatePopupMenu();
        AppendMenuW(hDeepest, MF_POPUP, reinterpret_cast<UINT_PTR>(hInner), L"submenu");
        hDeepest = hInner;
    }
    AppendMenuW(hDeepest, MF_STRING, UnknownId, L"old");
    EXPECT_TRUE(TranslateMenu(menu.get()));
    EXPECT_EQ(L"new", TextAt(hDeepest, 0));
    EXPECT_EQ(L"submenu", TextAt(menu.get(), 0)) << "a submenu has no number of its own";
}

TEST_F(TranslatedMenu, KeepsTheTextOfItemsWhoseNumberIsAPosition)
{
    LoadText(L"1:new\n2:new\n3:new\n");
    const COwnMenu menu(CreatePopupMenu());
    for (const UINT nId : {1, 2, 3})
        AppendMenuW(menu.get(), MF_STRING, nId, L"old");
    EXPECT_TRUE(TranslateMenu(menu.get()));
    EXPECT_EQ(L"old", TextAt(menu.get(), 0));
    EXPECT_EQ(L"old", TextAt(menu.get(), 1));
    EXPECT_EQ(L"new", TextAt(menu.get(), 2)) << "three items have no position 3";
}

TEST_F(TranslatedMenu, KeepsTheTextOfItemsWithoutATranslation)
{
    LoadText(L"263:new\n");
    const COwnMenu menu(CreatePopupMenu());
    AppendMenuW(menu.get(), MF_STRING, 264, L"old");
    EXPECT_TRUE(TranslateMenu(menu.get()));
    EXPECT_EQ(L"old", TextAt(menu.get(), 0));
}

TEST_F(TranslatedMenu, StopsAtASubmenuThatFails)
{
    LoadText(L"263:new\n");
    const COwnMenu menu(CreatePopupMenu());
    AppendMenuW(menu.get(), MF_STRING, UnknownId, L"old");
    AppendMenuW(menu.get(), MF_STRING, static_cast<UINT>(-1), L"taken for a submenu");
    AppendMenuW(menu.get(), MF_STRING, UnknownId, L"old");
    EXPECT_FALSE(TranslateMenu(menu.get()));
    EXPECT_EQ(L"new", TextAt(menu.get(), 0));
    EXPECT_EQ(L"old", TextAt(menu.get(), 2));
}

TEST_F(TranslatedMenu, LoadsAnotherInThePlaceOfTheFirst)
{
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenu(IDR_COLORPICKER_MENU));
    ASSERT_TRUE(menu.LoadMenu(IDR_INFOBAR_MENU));
    EXPECT_EQ(L"Detached", TextAt(GetSubMenu(menu, 0), 0));
    EXPECT_FALSE(menu.LoadMenu(9999));
    EXPECT_EQ(nullptr, menu.GetSafeHmenu());
}
