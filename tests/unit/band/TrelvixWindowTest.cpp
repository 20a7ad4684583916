// The toolbar window: its creation and its messages.

#include "band/TrelvixWindow.h"

#include "tests/fakes/ToolbarRecorder.h"
#include "tests/unit/band/WindowFixture.h"

#include <gmock/gmock.h>

#include <climits>

using testing::Each;
using testing::ElementsAre;

using ToolbarWindow = CWindowTest;

TEST_F(ToolbarWindow, IsEmptyBeforeItIsCreated)
{
    CTrelvixWindow window;
    EXPECT_EQ(nullptr, window.m_hWnd);
    EXPECT_THAT(window.GetOrder(), Each(-1));
    EXPECT_EQ(51u, window.GetOrder().size());
    for (int nIndex = -1; nIndex <= ButtonCount; ++nIndex)
        EXPECT_EQ(nullptr, window.GetButton(nIndex));
    EXPECT_EQ(nullptr, window.GetBand());
    EXPECT_EQ(nullptr, window.GetWebBrowser());
}

TEST_F(ToolbarWindow, IsNotCreatedWithoutAParent)
{
    CTrelvixWindow window;
    EXPECT_FALSE(window.Create(WS_CHILD, RECT {}, nullptr, 103));
    EXPECT_EQ(0, GetItems().m_nCreated);
}

TEST_F(ToolbarWindow, PreparesTheControlStepByStep)
{
    GetItems()[3].bHasControl = true;
    const CToolbarRecorder recorder;
    ConnectWith({2, 5, 3});
    std::vector<UINT> expected = {
        TB_BUTTONSTRUCTSIZE, TB_SETPARENT,       TB_SETEXTENDEDSTYLE,     TB_GETIMAGELIST,         TB_SETIMAGELIST,
        TB_GETHOTIMAGELIST,  TB_SETHOTIMAGELIST, TB_GETDISABLEDIMAGELIST, TB_SETDISABLEDIMAGELIST, TB_BUTTONCOUNT};
    expected.insert(expected.end(), ButtonCount, TB_ADDSTRINGW);
    expected.insert(expected.end(), {TB_SETMETRICS, TB_ADDBUTTONSW, TB_ADDBUTTONSW, TB_ADDBUTTONSW, TB_ADDBUTTONSW,
                                     TB_BUTTONCOUNT, TB_GETITEMRECT, TB_SETBUTTONINFOW});
    EXPECT_EQ(expected, recorder.GetNumbers());
}

TEST_F(ToolbarWindow, GivesTheControlItsOwnerAndItsExtendedStyle)
{
    const CToolbarRecorder recorder;
    ConnectWith({});
    EXPECT_EQ(reinterpret_cast<WPARAM>(GetReflexionWindow()), recorder.GetMessages(TB_SETPARENT).front().wParam);
    EXPECT_EQ(9, recorder.GetMessages(TB_SETEXTENDEDSTYLE).front().lParam);
    EXPECT_EQ(9, Send(TB_GETEXTENDEDSTYLE));
}

TEST_F(ToolbarWindow, GivesTheControlThreeImageListsOfItsOwn)
{
    ConnectWith({});
    const LRESULT lists[] = {Send(TB_GETIMAGELIST), Send(TB_GETHOTIMAGELIST), Send(TB_GETDISABLEDIMAGELIST)};
    for (const LRESULT list : lists)
        EXPECT_EQ(60, ImageList_GetImageCount(reinterpret_cast<HIMAGELIST>(list)));
    EXPECT_NE(lists[0], lists[1]);
    EXPECT_NE(lists[1], lists[2]);
}

TEST_F(ToolbarWindow, AddsEachItemWithItsRecord)
{
    const CToolbarRecorder recorder;
    ConnectWith({2, 13});
    const auto messages = recorder.GetMessages(TB_ADDBUTTONSW);
    ASSERT_EQ(3u, messages.size());
    const int expected[] = {0, 2, 13};
    for (size_t n = 0; n < messages.size(); ++n)
    {
        ASSERT_EQ(1u, messages[n].buttons.size());
        EXPECT_EQ(1024 + expected[n], messages[n].buttons.front().idCommand);
        EXPECT_EQ(expected[n], messages[n].buttons.front().iBitmap);
    }
}

TEST_F(ToolbarWindow, ShowsAndPlacesEachItemRightAfterItWasAdded)
{
    StoreItems({2, 13, 2});
    Connect();
    EXPECT_THAT(GetItems().TakeCalls(),
                ElementsAre("0 Show", "0 Place", "2 Show", "2 Place", "13 Show", "13 Place", "2 Show", "2 Place"));
}

TEST_F(ToolbarWindow, PlacesAnItemWithAControlByItsCommand)
{
    GetItems()[3].bHasControl = true;
    const CToolbarRecorder recorder;
    ConnectWith({3});
    const auto messages = recorder.GetMessages(TB_SETBUTTONINFOW);
    ASSERT_EQ(1u, messages.size());
    EXPECT_EQ(1027u, messages[0].wParam);
    EXPECT_EQ(48u, messages[0].buttonInfo.cbSize);
    EXPECT_EQ(0x48u, messages[0].buttonInfo.dwMask);
    EXPECT_EQ(BTNS_SEP, messages[0].buttonInfo.fsStyle);
    EXPECT_EQ(50, messages[0].buttonInfo.cx);
    EXPECT_EQ(1u, recorder.GetMessages(TB_GETITEMRECT).front().wParam) << "of the last button";
}

TEST_F(ToolbarWindow, EmptiesTheControlBeforeItMakesAllItemsAnew)
{
    ConnectWith({2, 5});
    const CToolbarRecorder recorder;
    EXPECT_TRUE(GetToolbar().LoadLayout());
    std::vector<UINT> expected;
    for (int n = 0; n < 3; ++n)
        expected.insert(expected.end(), {TB_BUTTONCOUNT, TB_DELETEBUTTON});
    expected.push_back(TB_BUTTONCOUNT);
    expected.insert(expected.end(), ButtonCount, TB_ADDSTRINGW);
    expected.push_back(TB_SETMETRICS);
    expected.insert(expected.end(), 3, TB_ADDBUTTONSW);
    EXPECT_EQ(expected, recorder.GetNumbers());
    for (const CToolbarMessage& message : recorder.GetMessages(TB_DELETEBUTTON))
        EXPECT_EQ(0u, message.wParam);
    EXPECT_EQ(2 * ButtonCount, GetItems().m_nCreated);
    EXPECT_EQ(ButtonCount, GetItems().m_nLiving);
}

TEST_F(ToolbarWindow, HasAHiddenChildOfItsOwnSizeForNotifications)
{
    ConnectWith({});
    const HWND hWnd = GetReflexionWindow();
    ASSERT_TRUE(IsWindow(hWnd));
    EXPECT_EQ(WS_CHILD, GetWindowLongPtrW(hWnd, GWL_STYLE) & (WS_CHILD | WS_VISIBLE));
    EXPECT_EQ(0, GetWindowTextLengthW(hWnd));
    RECT toolbar = {};
    RECT child = {};
    GetWindowRect(GetBandWindow(), &toolbar);
    GetWindowRect(hWnd, &child);
    EXPECT_TRUE(EqualRect(&toolbar, &child));
}

TEST_F(ToolbarWindow, DeletesItsItemsWithItsWindow)
{
    ConnectWith({2});
    EXPECT_EQ(ButtonCount, GetItems().m_nLiving);
    m_spBand->CloseDW(0);
    EXPECT_EQ(0, GetItems().m_nLiving);
}

TEST_F(ToolbarWindow, RepaintsTheControlsOfTheLayoutWhenItsSizeChanges)
{
    for (const int nIndex : {3, 7, 8})
        GetItems()[nIndex].bHasControl = true;
    ConnectWith({7, 2, 3, 7});
    Send(WM_SIZE, SIZE_RESTORED, MAKELPARAM(600, 22));
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("7 Repaint", "3 Repaint", "7 Repaint"))
        << "in the order of the layout, twice what is listed twice";
}

TEST_F(ToolbarWindow, RepaintsTheControlsOfTheTableWhenItIsPainted)
{
    for (const int nIndex : {3, 7, 8})
        GetItems()[nIndex].bHasControl = true;
    ConnectWith({7, 2, 3, 7});
    Send(WM_PAINT);
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("3 Repaint", "7 Repaint"))
        << "in the order of the table, each once, and only what stands in the layout";
}

TEST_F(ToolbarWindow, MakesItsItemsAnewWhenTheThemeChanges)
{
    ConnectWith({2});
    EXPECT_EQ(0, Send(WM_THEMECHANGED));
    EXPECT_EQ(2 * ButtonCount, GetItems().m_nCreated);
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("0 Show", "0 Place", "2 Show", "2 Place"));
}

TEST_F(ToolbarWindow, FindsNoItemForAnIndexOutOfRange)
{
    ConnectWith({2});
    for (const int nIndex : {INT_MIN, -1, 14, 50, INT_MAX})
    {
        EXPECT_EQ(nullptr, GetToolbar().GetButton(nIndex));
        EXPECT_EQ(nullptr, GetToolbar().GetVisibleButton(nIndex));
    }
    EXPECT_NE(nullptr, GetToolbar().GetButton(13));
    EXPECT_EQ(nullptr, GetToolbar().GetVisibleButton(13)) << "it doesn't stand in the layout";
}

TEST_F(ToolbarWindow, OutlivesMessagesFromAnyoneWithAnyArguments)
{
    ConnectWith({2, 5});
    const LPARAM extremes[] = {0, 1, -1, INT_MIN, INT_MAX, 0x7fffffffffffffff, LPARAM(0x8000000000000000)};
    for (const UINT message : {UINT(0x3400), UINT(WM_COMMAND), UINT(WM_TIMER), UINT(WM_THEMECHANGED), UINT(WM_SIZE)})
        for (const LPARAM wParam : extremes)
            for (const LPARAM lParam : extremes)
            {
                if (message == WM_COMMAND && lParam != 0) // then it must be a window, for the control's own procedure
                    continue;
                Send(message, wParam, lParam);
            }
    EXPECT_TRUE(IsWindow(GetBandWindow()));
}

TEST_F(ToolbarWindow, PassesOverAnItemThatCouldNotBeMade)
{
    GetItems()[6].bCanBeCreated = false;
    GetItems()[6].bHasControl = true;
    ConnectWith({6, 2});
    EXPECT_THAT(GetItemsOnToolbar(), ElementsAre(0, 2));
    EXPECT_EQ(nullptr, GetToolbar().GetButton(6));
    Send(WM_SIZE);
    Send(WM_PAINT);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(GetItemRect(1).left + 1, 3));
    ReleaseCapture();
    SendMessageW(GetReflexionWindow(), WM_COMMAND, 1030, 0);
    GetToolbar().OnPageRefreshComplete();
    EXPECT_EQ(S_OK, AskBandFor<IInputObject>()->UIActivateIO(TRUE, nullptr));
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("0 OnPageRefreshComplete", "2 OnPageRefreshComplete"));
}
