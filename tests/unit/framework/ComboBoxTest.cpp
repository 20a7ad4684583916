#include "framework/ComboBox.h"

#include "tests/fakes/TestWindow.h"

#include <windows.h>
#include <gtest/gtest.h>

namespace
{
constexpr UINT BoxId = 5;
constexpr DWORD BoxStyle = WS_CHILD | WS_VISIBLE | CBS_DROPDOWN | CBS_HASSTRINGS;

/// Counts its own notifications that come back from its parent.
class CCountingBox : public CComboBox
{
    DECLARE_MESSAGE_MAP()

public:
    int m_nSelections = 0;

private:
    void OnSelChange() { ++m_nSelections; }
};

BEGIN_MESSAGE_MAP(CCountingBox, CComboBox)
    ON_CONTROL_REFLECT(CBN_SELCHANGE, OnSelChange)
END_MESSAGE_MAP()

/// A parent that has a handler for every command of the box.
class CParent : public CWnd
{
    DECLARE_MESSAGE_MAP()

public:
    LRESULT Notify(WORD nCode, HWND hWndControl)
    {
        return SendMessageW(m_hWnd, WM_COMMAND, MAKEWPARAM(BoxId, nCode), reinterpret_cast<LPARAM>(hWndControl));
    }

    int m_nCommands = 0;

private:
    LRESULT OnCommand(WPARAM, LPARAM)
    {
        ++m_nCommands;
        return 0;
    }
};

BEGIN_MESSAGE_MAP(CParent, CWnd)
    {WM_COMMAND, CBN_SELCHANGE, BoxId, BoxId, &AfxMessage::CallMessage<ThisClass, &ThisClass::OnCommand>},
        {WM_COMMAND, CBN_DROPDOWN, BoxId, BoxId, &AfxMessage::CallMessage<ThisClass, &ThisClass::OnCommand>},
END_MESSAGE_MAP()

class ComboBox : public testing::Test
{
protected:
    void SetUp() override
    {
        constexpr RECT rect = {0, 0, 200, 300};
        ASSERT_TRUE(m_parent.CreateEx(0, nullptr, nullptr, WS_CHILD | WS_VISIBLE, rect, m_frame, 1));
        ASSERT_TRUE(m_box.Create(BoxStyle, rect, m_parent, BoxId));
    }

    CTestWindow m_frame;
    CParent m_parent;
    CCountingBox m_box;
};
} // namespace

TEST_F(ComboBox, IsEmptyAtFirst)
{
    EXPECT_EQ(0, m_box.GetCount());
    EXPECT_EQ(CB_ERR, m_box.GetCurSel());
    EXPECT_EQ(CB_ERR, m_box.SetCurSel(0));
}

TEST_F(ComboBox, KeepsItsEntriesInOrder)
{
    EXPECT_EQ(0, m_box.InsertString(0, L"second"));
    EXPECT_EQ(0, m_box.InsertString(0, L"first"));
    EXPECT_EQ(2, m_box.InsertString(2, L"third"));
    EXPECT_EQ(3, m_box.GetCount());
    std::wstring strText;
    m_box.GetLBText(1, strText);
    EXPECT_EQ(L"second", strText);
    EXPECT_EQ(2, m_box.SetCurSel(2));
    EXPECT_EQ(2, m_box.GetCurSel());
    m_box.ResetContent();
    EXPECT_EQ(0, m_box.GetCount());
}

TEST_F(ComboBox, HasNoTextWhereItHasNoEntry)
{
    std::wstring strText = L"old";
    m_box.GetLBText(0, strText);
    EXPECT_EQ(L"", strText);
}

TEST_F(ComboBox, FindsAWholeEntryOfAnyCase)
{
    m_box.InsertString(0, L"Word");
    m_box.InsertString(1, L"words");
    EXPECT_EQ(0, m_box.FindStringExact(-1, L"wORD"));
    EXPECT_EQ(1, m_box.FindStringExact(-1, L"WORDS"));
    EXPECT_EQ(CB_ERR, m_box.FindStringExact(-1, L"wor"));
}

TEST_F(ComboBox, TellsTheTextOfItsField)
{
    const std::wstring strLong(3000, L'x');
    std::wstring strText;
    m_box.GetWindowText(strText);
    EXPECT_EQ(L"", strText);
    SetWindowTextW(m_box, strLong.c_str());
    m_box.GetWindowText(strText);
    EXPECT_EQ(strLong, strText);
}

TEST_F(ComboBox, HasNoTextWithoutAWindow)
{
    m_box.DestroyWindow();
    std::wstring strText = L"old";
    m_box.GetWindowText(strText);
    EXPECT_EQ(L"", strText);
}

TEST_F(ComboBox, GetsItsNotificationBeforeItsParent)
{
    m_parent.Notify(CBN_SELCHANGE, m_box);
    EXPECT_EQ(1, m_box.m_nSelections);
    EXPECT_EQ(0, m_parent.m_nCommands);
}

TEST_F(ComboBox, LeavesANotificationThatItDoesNotHandleToItsParent)
{
    m_parent.Notify(CBN_DROPDOWN, m_box);
    EXPECT_EQ(0, m_box.m_nSelections);
    EXPECT_EQ(1, m_parent.m_nCommands);
}

TEST_F(ComboBox, GetsNoNotificationFromAWindowThatIsNotItsParent)
{
    CParent stranger;
    constexpr RECT rect = {0, 0, 10, 10};
    ASSERT_TRUE(stranger.CreateEx(0, nullptr, nullptr, WS_CHILD, rect, m_frame, 2));
    stranger.Notify(CBN_SELCHANGE, m_box);
    stranger.Notify(CBN_SELCHANGE, nullptr);
    EXPECT_EQ(0, m_box.m_nSelections);
    EXPECT_EQ(2, stranger.m_nCommands);
}
