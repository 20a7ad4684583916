// The way from the control's commands and notifications to the items.

#include "band/ReflexionWnd.h"

#include "tests/unit/band/WindowFixture.h"

#include <gmock/gmock.h>

#include <climits>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
class Reflexion : public CWindowTest
{
protected:
    void Command(WPARAM wParam) { SendMessageW(GetReflexionWindow(), WM_COMMAND, wParam, 0); }

    LRESULT DropDown(int nItem, UINT_PTR nControl = 103)
    {
        NMTOOLBARW notification = {};
        notification.hdr.hwndFrom = GetBandWindow();
        notification.hdr.idFrom = nControl;
        notification.hdr.code = TBN_DROPDOWN;
        notification.iItem = nItem;
        return SendMessageW(GetReflexionWindow(), WM_NOTIFY, nControl, reinterpret_cast<LPARAM>(&notification));
    }
};
} // namespace

TEST_F(Reflexion, GivesACommandToItsItem)
{
    ConnectWith({2, 13});
    Command(1026);
    Command(1037);
    Command(1024);
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("2 OnCommand 1026", "13 OnCommand 1037", "0 OnCommand 1024"));
}

TEST_F(Reflexion, GivesNoCommandToAnItemOutsideTheLayout)
{
    ConnectWith({2});
    Command(1025);
    Command(1037);
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
}

TEST_F(Reflexion, RoutesNoCommandOutOfRange)
{
    ConnectWith({2, 13});
    for (const WPARAM nCommand : {0, 1, 1023, 1038, 1039, 0x7fff, 0xffff})
        Command(nCommand);
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
}

TEST_F(Reflexion, GivesADropDownToItsItem)
{
    ConnectWith({2, 13});
    EXPECT_EQ(TBDDRET_DEFAULT, DropDown(1026));
    EXPECT_EQ(TBDDRET_DEFAULT, DropDown(1037));
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("2 OnDropDown 1026", "13 OnDropDown 1037"));
}

TEST_F(Reflexion, GivesNoDropDownToAnItemOutsideTheLayout)
{
    ConnectWith({2});
    DropDown(1037);
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
}

TEST_F(Reflexion, RoutesNoDropDownOutOfRange)
{
    ConnectWith({2, 13});
    for (const int nItem : {INT_MIN, -1, 0, 1023, 1038, INT_MAX})
        DropDown(nItem);
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
}

TEST_F(Reflexion, TakesDropDownsOfTheToolbarAlone)
{
    ConnectWith({2});
    DropDown(1026, 102);
    DropDown(1026, 0);
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
}

TEST_F(Reflexion, OutlivesANotificationWithoutAHeader)
{
    ConnectWith({2});
    SendMessageW(GetReflexionWindow(), WM_NOTIFY, 103, 0);
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
}

TEST_F(Reflexion, HearsARealClickOnTheControl)
{
    ConnectWith({2});
    ShowFrame();
    const RECT rect = GetItemRect(1);
    const LPARAM point = MAKELPARAM(rect.left + 3, rect.top + 3);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, point);
    Send(WM_LBUTTONUP, 0, point);
    EXPECT_THAT(GetItems().TakeCalls(), testing::Contains("2 OnCommand 1026"));
}

TEST(ReflexionWithoutAToolbar, DropsWhatItHears)
{
    const CTestWindow window;
    CReflexionWnd reflexion;
    ASSERT_TRUE(reflexion.CreateEx(0, nullptr, nullptr, WS_CHILD, RECT {}, window, 0));
    SendMessageW(reflexion, WM_COMMAND, 1024, 0);
    NMTOOLBARW notification = {{reflexion, 103, static_cast<UINT>(TBN_DROPDOWN)}, 1024, {}, 0, nullptr, {}};
    SendMessageW(reflexion, WM_NOTIFY, 103, reinterpret_cast<LPARAM>(&notification));
    EXPECT_TRUE(IsWindow(reflexion));
}
