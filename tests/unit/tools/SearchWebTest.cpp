#include "band/ButtonIndex.h"
#include "band/TrelvixWindow.h"
#include "tests/fakes/BrowserEvent.h"
#include "tests/unit/tools/ToolbarFixture.h"
#include "tools/ButtonSearchWeb.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
constexpr COLORREF Grey = 0x9B9B9B;
constexpr int Box = SearchGoogleIndex;

/// The styles that combo boxes of this thread are made with; the control changes them afterwards.
class CBoxCreations
{
public:
    CBoxCreations() : m_hHook(SetWindowsHookExW(WH_CBT, OnCreate, nullptr, GetCurrentThreadId())) { s_styles.clear(); }
    CBoxCreations(const CBoxCreations&) = delete;
    CBoxCreations& operator=(const CBoxCreations&) = delete;
    ~CBoxCreations() { UnhookWindowsHookEx(m_hHook); }

    const std::vector<DWORD>& GetStyles() const { return s_styles; }

private:
    static LRESULT CALLBACK OnCreate(int nCode, WPARAM wParam, LPARAM lParam)
    {
        wchar_t szClass[16] = {};
        GetClassNameW(reinterpret_cast<HWND>(wParam), szClass, 16);
        if (nCode == HCBT_CREATEWND && _wcsicmp(szClass, WC_COMBOBOXW) == 0)
            s_styles.push_back(reinterpret_cast<CBT_CREATEWNDW*>(lParam)->lpcs->style);
        return CallNextHookEx(nullptr, nCode, wParam, lParam);
    }

    static inline std::vector<DWORD> s_styles;
    HHOOK m_hHook;
};

/// The drawing context of a window's client area, for as long as the object lives.
class CClientDC
{
public:
    explicit CClientDC(HWND hWnd) : m_hWnd(hWnd), m_hDC(GetDC(hWnd)) {}
    CClientDC(const CClientDC&) = delete;
    CClientDC& operator=(const CClientDC&) = delete;
    ~CClientDC() { ReleaseDC(m_hWnd, m_hDC); }

    operator HDC() const { return m_hDC; }
    WPARAM AsParameter() const { return reinterpret_cast<WPARAM>(m_hDC); }

private:
    const HWND m_hWnd;
    const HDC m_hDC;
};

/// The search box of the toolbar, on a template of its own.
class SearchWebBox : public CToolbarTest
{
protected:
    SearchWebBox() { StoreSetting(L"Button3", L"WebSearchURL", L"x?q=%%WORD%%"); }
    ~SearchWebBox() override { StoreSetting(L"Button3", L"WebSearchURL", L""); }

    std::vector<std::wstring> GetAddresses() const
    {
        std::vector<std::wstring> addresses;
        for (const auto& navigation : m_spBrowser->m_navigations)
            addresses.push_back(navigation.strUrl);
        return addresses;
    }

    HWND GetEdit() { return GetWindow(GetBox(Box), GW_CHILD); }

    /// The colour in which the edit field would be drawn.
    COLORREF GetTextColorOfEdit()
    {
        const CClientDC dc(GetEdit());
        SetTextColor(dc, RGB(1, 2, 3));
        SendMessageW(GetBox(Box), WM_CTLCOLOREDIT, dc.AsParameter(), reinterpret_cast<LPARAM>(GetEdit()));
        return GetTextColor(dc);
    }
};
} // namespace

TEST_F(SearchWebBox, StandsOnItsGapInTheToolbar)
{
    RECT item = {};
    const int nPosition =
        static_cast<int>(SendMessageW(GetBandWindow(), TB_COMMANDTOINDEX, FirstButtonCommand + Box, 0));
    SendMessageW(GetBandWindow(), TB_GETITEMRECT, nPosition, reinterpret_cast<LPARAM>(&item));
    RECT box = {};
    GetWindowRect(GetBox(Box), &box);
    MapWindowPoints(nullptr, GetBandWindow(), reinterpret_cast<POINT*>(&box), 2);
    EXPECT_EQ(200, item.right - item.left);
    EXPECT_EQ(item.left, box.left);
    EXPECT_EQ(item.right, box.right);
    EXPECT_EQ(item.top, box.top);
    RECT dropped = {};
    SendMessageW(GetBox(Box), CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
    EXPECT_GT(dropped.bottom - dropped.top, 100);
}

TEST_F(SearchWebBox, IsAnEditableListInTheDialogFont)
{
    constexpr DWORD dwStyleOfBox = 0x56A00642;
    const CBoxCreations creations;
    GetToolbar().LoadLayout();
    EXPECT_THAT(creations.GetStyles(), testing::Contains(dwStyleOfBox).Times(3));
    EXPECT_EQ(reinterpret_cast<LRESULT>(GetStockObject(DEFAULT_GUI_FONT)), SendMessageW(GetBox(Box), WM_GETFONT, 0, 0));
    EXPECT_EQ(GetBandWindow(), GetParent(GetBox(Box)));
}

TEST_F(SearchWebBox, IsMadeOnce)
{
    const HWND hWndBox = GetBox(Box);
    ShowWindow(hWndBox, SW_HIDE);
    EXPECT_TRUE(GetItem(Box).Place());
    EXPECT_EQ(hWndBox, GetBox(Box));
    EXPECT_TRUE(IsWindowVisible(hWndBox));
}

TEST_F(SearchWebBox, IsHiddenAndShownWithItsItem)
{
    GetItem(Box).Show(false);
    EXPECT_FALSE(IsWindowVisible(GetBox(Box)));
    EXPECT_FALSE(GetItem(Box).IsVisible());
    GetItem(Box).Show(true);
    EXPECT_TRUE(IsWindowVisible(GetBox(Box)));
}

TEST_F(SearchWebBox, ShowsItsLabelInGreyWhileItIsEmptyAndUnfocused)
{
    EXPECT_EQ(L"Google Search (Alt+Q)", GetBoxText(Box));
    EXPECT_EQ(Grey, GetTextColorOfEdit());
}

TEST_F(SearchWebBox, IsEmptyOnceItHasTheFocus)
{
    EXPECT_TRUE(GetItem(Box).TakeFocus());
    EXPECT_EQ(L"", GetBoxText(Box));
    EXPECT_NE(Grey, GetTextColorOfEdit());
    EXPECT_EQ(GetEdit(), GetFocus());
    EXPECT_TRUE(GetItem(Box).HasFocus());
}

TEST_F(SearchWebBox, ShowsItsLabelAgainWhenItLosesTheFocusEmpty)
{
    GetItem(Box).TakeFocus();
    SetFocus(m_frame);
    EXPECT_FALSE(GetItem(Box).HasFocus());
    EXPECT_EQ(L"Google Search (Alt+Q)", GetBoxText(Box));
    EXPECT_EQ(Grey, GetTextColorOfEdit());
}

TEST_F(SearchWebBox, KeepsItsTextWhenItLosesTheFocus)
{
    Type(Box, L"word");
    SetFocus(m_frame);
    EXPECT_EQ(L"word", GetBoxText(Box));
    EXPECT_NE(Grey, GetTextColorOfEdit());
    GetItem(Box).TakeFocus();
    EXPECT_EQ(L"word", GetBoxText(Box));
}

TEST_F(SearchWebBox, ColoursOnlyItsEditField)
{
    const CClientDC dc(GetEdit());
    SetTextColor(dc, RGB(1, 2, 3));
    SendMessageW(GetBox(Box), WM_CTLCOLORLISTBOX, dc.AsParameter(), reinterpret_cast<LPARAM>(GetEdit()));
    EXPECT_NE(Grey, GetTextColor(dc));
}

TEST_F(SearchWebBox, GivesTheEditFieldTheBrushThatAnyEditFieldGets)
{
    const CClientDC dc(GetEdit());
    const auto wParam = dc.AsParameter();
    const LRESULT hBrush = SendMessageW(GetBox(Box), WM_CTLCOLOREDIT, wParam, reinterpret_cast<LPARAM>(GetEdit()));
    EXPECT_EQ(DefWindowProcW(m_frame, WM_CTLCOLOREDIT, wParam, reinterpret_cast<LPARAM>(GetEdit())), hBrush);
    EXPECT_NE(0, hBrush);
}

TEST_F(SearchWebBox, TellsTheHostOfTheFocusWhenItGetsItAndNotWhenItLosesIt)
{
    m_spSite->m_focusChanges.clear();
    GetItem(Box).TakeFocus();
    ASSERT_EQ(1u, m_spSite->m_focusChanges.size());
    EXPECT_TRUE(m_spSite->m_focusChanges[0].bFocus);
    SetFocus(m_frame);
    EXPECT_EQ(1u, m_spSite->m_focusChanges.size());
}

TEST_F(SearchWebBox, NavigatesToTheTemplateWithTheEscapedText)
{
    Enter(Box, L"a b");
    ASSERT_EQ(1u, m_spBrowser->m_navigations.size());
    EXPECT_EQ(L"x?q=a%20b", m_spBrowser->m_navigations[0].strUrl);
    EXPECT_EQ(_variant_t(0L), m_spBrowser->m_navigations[0].vFlags);
    EXPECT_FALSE(m_spBrowser->m_navigations[0].bOtherArguments);
}

TEST_F(SearchWebBox, EscapesAccentsHyphensAndPercentSigns)
{
    Enter(Box, L"\xE9");
    Enter(Box, L"-");
    Enter(Box, L"%");
    EXPECT_THAT(GetAddresses(), ElementsAre(L"x?q=%C3%A9", L"x?q=%2D", L"x?q=%25"));
}

TEST_F(SearchWebBox, DoesNothingWhenItIsEmpty)
{
    Enter(Box, L"");
    EXPECT_FALSE(GetItem(Box).Run());
    EXPECT_FALSE(GetItem(Box).Search(L""));
    EXPECT_THAT(GetAddresses(), IsEmpty());
}

TEST_F(SearchWebBox, AddsNothingToItsList)
{
    Enter(Box, L"one");
    Enter(Box, L"two");
    EXPECT_THAT(GetEntries(Box), IsEmpty());
    EXPECT_TRUE(GetItem(Box).IsHistoryDisabled());
}

TEST_F(SearchWebBox, ReadsAndWritesNoHistory)
{
    m_broker->m_writes.clear();
    Enter(Box, L"one");
    EXPECT_TRUE(GetToolbar().LoadLayout());
    for (const std::wstring& strKey : m_broker->m_reads)
        EXPECT_EQ(std::wstring::npos, strKey.find(L"history"));
    EXPECT_THAT(m_broker->m_writes, IsEmpty());
}

TEST_F(SearchWebBox, SearchesAlsoWithoutADocument)
{
    m_spBrowser->m_spDocument.Reset();
    Enter(Box, L"word");
    EXPECT_THAT(GetAddresses(), ElementsAre(L"x?q=word"));
}

TEST_F(SearchWebBox, TakesARefusedNavigationForDone)
{
    CFakeCalls::Get().FailAll("WebBrowser.Navigate", E_FAIL);
    EXPECT_TRUE(GetItem(Box).Search(L"word"));
}

TEST_F(SearchWebBox, SurvivesThatASearchMakesAllItemsAnew)
{
    Type(Box, L"word");
    CFakeCalls::Get().ActIn("WebBrowser.Navigate", [&] { GetToolbar().LoadLayout(); });
    EXPECT_EQ(S_OK, PressKey(Box, VK_RETURN));
    EXPECT_EQ(L"Google Search (Alt+Q)", GetBoxText(Box));
    EXPECT_FALSE(GetItem(Box).HasFocus());
}

TEST_F(SearchWebBox, IsDrawnAgainWhileItIsVisible)
{
    ValidateRect(GetEdit(), nullptr);
    EXPECT_TRUE(GetItem(Box).Repaint());
    EXPECT_TRUE(GetUpdateRect(GetEdit(), nullptr, FALSE));
    GetItem(Box).Show(false);
    EXPECT_FALSE(GetItem(Box).Repaint());
}

TEST_F(SearchWebBox, IsUntouchedByANavigation)
{
    Type(Box, L"word");
    ShowPage(L"another");
    auto event = CBrowserEvent::NavigateComplete2(m_spBrowser->AsFrame(), L"http://page.test/");
    m_spBrowser->Fire(event);
    EXPECT_EQ(L"word", GetBoxText(Box));
}

TEST(SearchWebItem, IsABoxOnASeparator)
{
    CButtonSearchWeb item;
    EXPECT_TRUE(item.Initialize(nullptr));
    EXPECT_TRUE(item.HasControl());
    EXPECT_TRUE(item.IsFocusable());
    EXPECT_EQ(BTNS_SEP, item.GetTBButton().fsStyle);
}

TEST(SearchWebItem, KeepsTheWidthThatItsClassHasSet)
{
    class CNarrowItem : public CButtonSearchWeb
    {
    public:
        CNarrowItem() { m_nControlWidth = 90; }
        using CButtonSearchWeb::m_nControlWidth;
    };
    CNarrowItem item;
    EXPECT_TRUE(item.Initialize(nullptr));
    EXPECT_EQ(90, item.m_nControlWidth);
}

TEST(SearchWebItem, WorksWithoutAToolbar)
{
    CButtonSearchWeb item;
    item.Initialize(nullptr);
    EXPECT_TRUE(item.Place());
    item.Show(true);
    EXPECT_TRUE(item.Repaint());
    EXPECT_TRUE(item.Search(L"word"));
    EXPECT_FALSE(item.Run());
    MSG message = {nullptr, WM_KEYDOWN, VK_TAB, 1, 0, {}};
    EXPECT_EQ(S_FALSE, item.TranslateKey(&message));
    item.Show(false);
}
