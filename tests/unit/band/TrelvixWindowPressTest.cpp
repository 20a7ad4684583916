// Presses of the mouse on the toolbar.

#include "tests/unit/band/WindowFixture.h"

#include <gmock/gmock.h>

#include <climits>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
class ToolbarPress : public CWindowTest
{
protected:
    /// Presses the mouse at an offset from the left edge of an item.
    void Press(int nPosition, int nOffset)
    {
        const RECT rect = GetItemRect(nPosition);
        Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(rect.left + nOffset, rect.top + 2));
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
    ConnectWith({2, 5});
    GetItems()[5].bTakesIconClick = true;
    const RECT rect = GetItemRect(2);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(rect.left + 24, rect.top + 2));
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
    ReleaseCapture();
}

TEST_F(ToolbarPress, KeepsAPressOutsideTheItemsFromThem)
{
    ConnectWith({2, 5});
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(GetItemRect(2).right + 100, 5));
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(-5, -5));
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(SHRT_MAX, SHRT_MAX));
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
    ReleaseCapture();
}

TEST_F(ToolbarPress, GivesNoPressToAnItemWithAControl)
{
    GetItems()[3].bHasControl = true;
    ConnectWith({3});
    Press(1, 5);
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
    ReleaseCapture();
}
