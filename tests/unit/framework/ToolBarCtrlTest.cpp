#include "framework/ToolBarCtrl.h"

#include "framework/ImageList.h"
#include "tests/fakes/TestWindow.h"
#include "tests/fakes/ToolbarRecorder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
constexpr RECT BarRect = {0, 0, 600, 30};
constexpr DWORD BarStyle = WS_CHILD | WS_VISIBLE | TBSTYLE_FLAT | CCS_NOPARENTALIGN | CCS_NORESIZE;

TBBUTTON MakeButton(int nCommand)
{
    TBBUTTON button = {};
    button.iBitmap = I_IMAGENONE;
    button.idCommand = nCommand;
    button.fsState = TBSTATE_ENABLED;
    return button;
}

class ToolBarCtrl : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(m_bar.Create(BarStyle, BarRect, m_parent, 103)); }

    void AddButtons(int nCount)
    {
        for (int n = 0; n < nCount; ++n)
        {
            const TBBUTTON button = MakeButton(1024 + n);
            ASSERT_TRUE(m_bar.AddButtons(1, &button));
        }
    }

    const CTestWindow m_parent;
    CToolBarCtrl m_bar;
};
} // namespace

TEST_F(ToolBarCtrl, IsAToolbarOfTheCommonControlsWithItsNumber)
{
    wchar_t szClass[32] = {};
    GetClassNameW(m_bar, szClass, ARRAYSIZE(szClass));
    EXPECT_STREQ(TOOLBARCLASSNAMEW, szClass);
    EXPECT_EQ(103, GetDlgCtrlID(m_bar));
    EXPECT_EQ(m_parent, GetParent(m_bar));
    EXPECT_EQ(0, m_bar.GetButtonCount());
}

TEST_F(ToolBarCtrl, TellsTheControlTheSizeOfARecordFirst)
{
    const CToolbarRecorder recorder;
    CToolBarCtrl bar;
    ASSERT_TRUE(bar.Create(BarStyle, BarRect, m_parent, 104));
    ASSERT_EQ(std::vector<UINT> {TB_BUTTONSTRUCTSIZE}, recorder.GetNumbers());
    EXPECT_EQ(sizeof(TBBUTTON), recorder.GetMessages().front().wParam);
}

TEST_F(ToolBarCtrl, CountsAddsAndDeletesButtons)
{
    AddButtons(3);
    EXPECT_EQ(3, m_bar.GetButtonCount());
    EXPECT_TRUE(m_bar.DeleteButton(0));
    EXPECT_EQ(2, m_bar.GetButtonCount());
    EXPECT_FALSE(m_bar.DeleteButton(2));
    EXPECT_EQ(2, m_bar.GetButtonCount());
}

TEST_F(ToolBarCtrl, GivesTheRectanglesOfItsButtonsFromLeftToRight)
{
    AddButtons(2);
    RECT first = {};
    RECT second = {};
    ASSERT_TRUE(m_bar.GetItemRect(0, &first));
    ASSERT_TRUE(m_bar.GetItemRect(1, &second));
    EXPECT_LT(first.left, first.right);
    EXPECT_EQ(first.right, second.left);
    EXPECT_FALSE(m_bar.GetItemRect(2, &first));
    EXPECT_FALSE(m_bar.GetItemRect(-1, &first));
}

TEST_F(ToolBarCtrl, FindsTheButtonAtAPoint)
{
    AddButtons(2);
    RECT rect = {};
    ASSERT_TRUE(m_bar.GetItemRect(1, &rect));
    EXPECT_EQ(1, m_bar.HitTest({rect.left + 1, rect.top + 1}));
    EXPECT_GT(0, m_bar.HitTest({rect.right + 50, rect.top + 1}));
}

TEST_F(ToolBarCtrl, ChangesAButtonByItsCommand)
{
    AddButtons(2);
    TBBUTTONINFOW info = {};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_STYLE | TBIF_SIZE;
    info.fsStyle = BTNS_SEP;
    info.cx = 77;
    EXPECT_TRUE(m_bar.SetButtonInfo(1025, &info));
    RECT rect = {};
    ASSERT_TRUE(m_bar.GetItemRect(1, &rect));
    EXPECT_EQ(77, rect.right - rect.left);
    EXPECT_FALSE(m_bar.SetButtonInfo(999, &info));
}

TEST_F(ToolBarCtrl, NumbersTheStringsThatItIsGiven)
{
    EXPECT_EQ(0, m_bar.AddStrings(L"first\0"));
    EXPECT_EQ(1, m_bar.AddStrings(L"second\0third\0"));
    EXPECT_EQ(3, m_bar.AddStrings(L"fourth\0"));
    wchar_t szText[16] = {};
    SendMessageW(m_bar, TB_GETSTRINGW, MAKEWPARAM(ARRAYSIZE(szText), 2), reinterpret_cast<LPARAM>(szText));
    EXPECT_STREQ(L"third", szText);
}

TEST_F(ToolBarCtrl, KeepsThreeImageListsApart)
{
    EXPECT_EQ(nullptr, m_bar.GetImageList());
    EXPECT_EQ(nullptr, m_bar.GetHotImageList());
    EXPECT_EQ(nullptr, m_bar.GetDisabledImageList());
    CImageList lists[3];
    for (CImageList& list : lists)
        ASSERT_TRUE(list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 1));
    m_bar.SetImageList(lists[0].m_hImageList);
    m_bar.SetHotImageList(lists[1].m_hImageList);
    m_bar.SetDisabledImageList(lists[2].m_hImageList);
    EXPECT_EQ(lists[0].m_hImageList, m_bar.GetImageList());
    EXPECT_EQ(lists[1].m_hImageList, m_bar.GetHotImageList());
    EXPECT_EQ(lists[2].m_hImageList, m_bar.GetDisabledImageList());
}

TEST_F(ToolBarCtrl, SendsTheMessagesOfItsNames)
{
    const CToolbarRecorder recorder;
    TBMETRICS metrics = {};
    metrics.cbSize = sizeof metrics;
    metrics.dwMask = TBMF_PAD;
    metrics.cyPad = -2;
    m_bar.SetMetrics(&metrics);
    m_bar.SetOwner(m_parent);
    m_bar.SetExtendedStyle(TBSTYLE_EX_DRAWDDARROWS);
    const auto& messages = recorder.GetMessages();
    ASSERT_EQ((std::vector<UINT> {TB_SETMETRICS, TB_SETPARENT, TB_SETEXTENDEDSTYLE}), recorder.GetNumbers());
    EXPECT_EQ(-2, messages[0].metrics.cyPad);
    EXPECT_EQ(reinterpret_cast<WPARAM>(static_cast<HWND>(m_parent)), messages[1].wParam);
    EXPECT_EQ(0u, messages[2].wParam) << "all bits, as published for the plain form";
    EXPECT_EQ(TBSTYLE_EX_DRAWDDARROWS, messages[2].lParam);
}

TEST(ToolBarCtrlWithoutAWindow, FailsQuietly)
{
    CToolBarCtrl bar;
    const TBBUTTON button = MakeButton(1024);
    const TBBUTTONINFOW info = {};
    RECT rect = {};
    EXPECT_EQ(0, bar.GetButtonCount());
    EXPECT_FALSE(bar.AddButtons(1, &button));
    EXPECT_FALSE(bar.DeleteButton(0));
    EXPECT_FALSE(bar.GetItemRect(0, &rect));
    EXPECT_FALSE(bar.SetButtonInfo(1024, &info));
    EXPECT_EQ(-1, bar.AddStrings(L"text\0"));
    EXPECT_EQ(-1, bar.HitTest({1, 1}));
    EXPECT_EQ(nullptr, bar.GetImageList());
}

TEST(ToolBarCtrlWithoutAParent, IsNotCreatedAsAChild)
{
    CToolBarCtrl bar;
    EXPECT_FALSE(bar.Create(BarStyle, BarRect, nullptr, 103));
    EXPECT_EQ(nullptr, bar.m_hWnd);
    EXPECT_EQ(0u, CWnd::GetAttachedCount());
}
