// Presses of the mouse on the toolbar.

#include "tests/unit/band/WindowFixture.h"

#include <gmock/gmock.h>

#include <climits>

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace
{
/// Counts the presses that controls of this thread tell their parents of while it lives. One at a time.
class CPressRecorder
{
public:
    CPressRecorder() : m_hHook(SetWindowsHookExW(WH_CALLWNDPROC, &OnMessageSent, nullptr, GetCurrentThreadId()))
    {
        s_nCount = 0;
    }
    CPressRecorder(const CPressRecorder&) = delete;
    CPressRecorder& operator=(const CPressRecorder&) = delete;
    ~CPressRecorder() { UnhookWindowsHookEx(m_hHook); }

    int GetCount() const { return s_nCount; }

private:
    static LRESULT CALLBACK OnMessageSent(int nCode, WPARAM wParam, LPARAM lParam)
    {
        const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (nCode == HC_ACTION && sent.message == WM_NOTIFY &&
            reinterpret_cast<const NMHDR*>(sent.lParam)->code == static_cast<UINT>(NM_LDOWN))
            ++s_nCount;
        return CallNextHookEx(nullptr, nCode, wParam, lParam);
    }

    static inline int s_nCount = 0;
    const HHOOK m_hHook;
};

class ToolbarPress : public CWindowTest
{
protected:
    /// Presses the mouse at an offset from the left edge of an item.
    void Press(int nPosition, int nOffset)
    {
        const RECT rect = GetItemRect(nPosition);
        Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(rect.left + nOffset, rect.top + 2));
    }

    int HitTest(LONG x, LONG y)
    {
        POINT point = {x, y};
        return static_cast<int>(Send(TB_HITTEST, 0, reinterpret_cast<LPARAM>(&point)));
    }

    /// Whether the control itself took the press; ends it.
    bool EndPress()
    {
        const bool bTaken = GetCapture() == GetBandWindow();
        ReleaseCapture();
        return bTaken;
    }
};
} // namespace

TEST_F(ToolbarPress, GivesAPressOnTheIconToItsItem)
{
    ConnectWith({2, 5});
    GetItems()[5].bTakesIconClick = true;
    Press(2, 23);
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("5 OnIconClick 1"));
    EXPECT_FALSE(EndPress());
}

TEST_F(ToolbarPress, TakesAPressThatTheItemDeclines)
{
    ConnectWith({2, 5});
    Press(2, 0);
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("5 OnIconClick 1"));
    EXPECT_TRUE(EndPress());
}

TEST_F(ToolbarPress, KeepsAPressOnTheArrowFromTheIcon)
{
    GetItems()[5].fsStyle = BTNS_DROPDOWN;
    ConnectWith({2, 5});
    GetItems()[5].bTakesIconClick = true;
    const RECT rect = GetItemRect(2);
    ASSERT_GT(rect.right, rect.left + 25);
    ASSERT_EQ(2, HitTest(rect.left + 24, rect.top + 2));
    Press(2, 24);
    EXPECT_THAT(GetItems().TakeCalls(), Not(Contains(StartsWith("5 OnIconClick"))));
    ReleaseCapture();
}

TEST_F(ToolbarPress, KeepsAPressOutsideTheItemsFromThem)
{
    ConnectWith({2, 5});
    for (const POINT point : {POINT {GetItemRect(2).right + 100, 5}, POINT {-5, -5}, POINT {SHRT_MAX, SHRT_MAX}})
    {
        const CPressRecorder recorder;
        Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
        EXPECT_EQ(1, recorder.GetCount()) << "the control's own procedure has told its parent";
        ReleaseCapture();
    }
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
}

TEST_F(ToolbarPress, GivesNoPressToAnItemWithAControl)
{
    GetItems()[3].bHasControl = true;
    ConnectWith({3});
    // A separator is hit by no press.
    TBBUTTONINFOW info = {sizeof info, TBIF_STYLE | TBIF_BYINDEX, 0, 0, 0, BTNS_BUTTON, 0, 0, nullptr, 0};
    Send(TB_SETBUTTONINFOW, 1, reinterpret_cast<LPARAM>(&info));
    const RECT rect = GetItemRect(1);
    ASSERT_EQ(1, HitTest(rect.left + 5, rect.top + 2));
    Press(1, 5);
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
    ReleaseCapture();
}
