#include "framework/MessageMap.h"

#include "framework/Wnd.h"
#include "tests/fakes/TestWindow.h"

#include <windows.h>
#include <commctrl.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{
constexpr UINT FirstMessage = WM_APP + 1;
constexpr UINT SecondMessage = WM_APP + 2;
constexpr UINT NotifyControl = 42;

/// Maps one message of each kind and keeps what its handlers were given.
class CBaseWnd : public CWnd
{
    DECLARE_MESSAGE_MAP()

public:
    using CWnd::Default;

    std::vector<std::string> m_calls;
    std::function<LRESULT(WPARAM, LPARAM)> m_onMessage;

protected:
    void OnDestroy() { m_calls.push_back("destroy"); }
    void OnPaint()
    {
        m_calls.push_back("paint");
        Default();
    }
    void OnLButtonDown(UINT nFlags, POINT point)
    {
        m_calls.push_back("press " + std::to_string(nFlags) + " at " + std::to_string(point.x) + "," +
                          std::to_string(point.y));
    }
    void OnSize(UINT nType, int cx, int cy)
    {
        m_calls.push_back("size " + std::to_string(nType) + " to " + std::to_string(cx) + "," + std::to_string(cy));
    }
    void OnTimer(UINT_PTR nIDEvent) { m_calls.push_back("timer " + std::to_string(nIDEvent)); }
    void OnCommand(UINT nID) { m_calls.push_back("command " + std::to_string(nID)); }
    void OnNotify(NMHDR* pHeader, LRESULT* pResult)
    {
        m_calls.push_back("notify from " + std::to_string(pHeader->idFrom));
        *pResult = 17;
    }
    LRESULT OnFirst(WPARAM wParam, LPARAM lParam) { return m_onMessage(wParam, lParam); }
    LRESULT OnSecond(WPARAM, LPARAM) { return 2; }
    LRESULT OnGetText(WPARAM, LPARAM)
    {
        SendMessageW(m_hWnd, FirstMessage, 0, 0);
        return Default();
    }
};

BEGIN_MESSAGE_MAP(CBaseWnd, CWnd)
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_LBUTTONDOWN()
    ON_WM_SIZE()
    ON_WM_TIMER()
    ON_COMMAND_RANGE(1024, 1037, OnCommand)
    ON_NOTIFY(TBN_DROPDOWN, NotifyControl, OnNotify)
    ON_MESSAGE(FirstMessage, OnFirst)
    ON_MESSAGE(SecondMessage, OnSecond)
    ON_MESSAGE(WM_GETTEXT, OnGetText)
END_MESSAGE_MAP()

/// Answers one of its base's messages differently.
class CDerivedWnd : public CBaseWnd
{
    DECLARE_MESSAGE_MAP()

protected:
    LRESULT OnSecond(WPARAM, LPARAM) { return 22; }
};

BEGIN_MESSAGE_MAP(CDerivedWnd, CBaseWnd)
    ON_MESSAGE(SecondMessage, OnSecond)
END_MESSAGE_MAP()

template <class Wnd>
class MessageMapOf : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_wnd.CreateEx(0, nullptr, nullptr, WS_CHILD, RECT {0, 0, 50, 50}, m_parent, 1));
        m_wnd.m_calls.clear();
    }

    LRESULT Send(UINT message, WPARAM wParam, LPARAM lParam) { return SendMessageW(m_wnd, message, wParam, lParam); }

    LRESULT Notify(UINT nCode, UINT_PTR nControl)
    {
        NMHDR header = {nullptr, nControl, nCode};
        return Send(WM_NOTIFY, nControl, reinterpret_cast<LPARAM>(&header));
    }

    const CTestWindow m_parent;
    Wnd m_wnd;
};

using MessageMap = MessageMapOf<CBaseWnd>;
using DerivedMessageMap = MessageMapOf<CDerivedWnd>;
using Calls = std::vector<std::string>;
} // namespace

TEST_F(MessageMap, GivesAPressItsFlagsAndItsSignedPoint)
{
    Send(WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, MAKELPARAM(-3, 400));
    EXPECT_EQ(Calls {"press 5 at -3,400"}, m_wnd.m_calls);
}

TEST_F(MessageMap, GivesASizeItsKindAndExtent)
{
    Send(WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(640, 40000));
    EXPECT_EQ(Calls {"size 2 to 640,40000"}, m_wnd.m_calls);
}

TEST_F(MessageMap, GivesATimerItsNumber)
{
    Send(WM_TIMER, 2017, 0);
    EXPECT_EQ(Calls {"timer 2017"}, m_wnd.m_calls);
}

TEST_F(MessageMap, TakesTheCommandsOfTheRangeAndNoOther)
{
    for (const WPARAM nCommand : {1023, 1024, 1037, 1038, 0, 0xFFFF})
        Send(WM_COMMAND, nCommand, 0);
    EXPECT_EQ((Calls {"command 1024", "command 1037"}), m_wnd.m_calls);
}

TEST_F(MessageMap, TakesNoCommandWithANotificationCode)
{
    Send(WM_COMMAND, MAKEWPARAM(1024, 1), 0);
    EXPECT_EQ(Calls {}, m_wnd.m_calls);
}

TEST_F(MessageMap, TakesTheNotificationOfItsControlWithItsResult)
{
    EXPECT_EQ(17, Notify(static_cast<UINT>(TBN_DROPDOWN), NotifyControl));
    EXPECT_EQ(Calls {"notify from 42"}, m_wnd.m_calls);
}

TEST_F(MessageMap, TakesNoOtherNotification)
{
    EXPECT_EQ(0, Notify(static_cast<UINT>(TBN_DROPDOWN), NotifyControl + 1));
    EXPECT_EQ(0, Notify(static_cast<UINT>(TBN_QUERYINSERT), NotifyControl));
    EXPECT_EQ(0, Send(WM_NOTIFY, NotifyControl, 0)) << "without a header";
    EXPECT_EQ(Calls {}, m_wnd.m_calls);
}

TEST_F(MessageMap, GivesAnyMessageBothArgumentsAndReturnsItsResult)
{
    m_wnd.m_onMessage = [](WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) + lParam; };
    EXPECT_EQ(0x1000000123, Send(FirstMessage, 0x1000000000, 0x123));
}

TEST_F(MessageMap, RunsTheDefaultWithTheArgumentsOfTheMessageUnderWay)
{
    ValidateRect(m_wnd, nullptr);
    InvalidateRect(m_wnd, nullptr, FALSE);
    ShowWindow(m_parent, SW_SHOWNA);
    ShowWindow(m_wnd, SW_SHOWNA);
    UpdateWindow(m_wnd);
    EXPECT_EQ(1, std::count(m_wnd.m_calls.begin(), m_wnd.m_calls.end(), "paint"));
    EXPECT_FALSE(GetUpdateRect(m_wnd, nullptr, FALSE)) << "the window's own procedure has validated it";
}

TEST_F(MessageMap, HasNoDefaultOutsideAMessage)
{
    EXPECT_EQ(0, m_wnd.Default());
}

TEST_F(MessageMap, KeepsTheMessageUnderWayOverANestedOne)
{
    SetWindowTextW(m_wnd, L"outer");
    m_wnd.m_onMessage = [](WPARAM, LPARAM) -> LRESULT { return 1; };
    wchar_t szText[16] = {};
    EXPECT_EQ(5, Send(WM_GETTEXT, ARRAYSIZE(szText), reinterpret_cast<LPARAM>(szText)));
    EXPECT_STREQ(L"outer", szText);
    EXPECT_EQ(0, m_wnd.Default()) << "nothing is under way afterwards";
}

TEST_F(MessageMap, LetsAHandlerDestroyTheWindow)
{
    m_wnd.m_onMessage = [&](WPARAM, LPARAM) -> LRESULT {
        m_wnd.DestroyWindow();
        return 5;
    };
    EXPECT_EQ(5, Send(FirstMessage, 0, 0));
    EXPECT_EQ(nullptr, m_wnd.m_hWnd);
}

TEST(MessageMapOfAFreedObject, IsNotTouchedAfterItsHandler)
{
    const CTestWindow parent;
    auto pWnd = std::make_unique<CBaseWnd>();
    ASSERT_TRUE(pWnd->CreateEx(0, nullptr, nullptr, WS_CHILD, RECT {}, parent, 1));
    pWnd->m_onMessage = [&](WPARAM, LPARAM) -> LRESULT {
        const HWND hWnd = *pWnd;
        const auto keepAlive = std::exchange(pWnd->m_onMessage, nullptr);
        pWnd.reset();
        return IsWindow(hWnd) ? 1 : 6;
    };
    EXPECT_EQ(6, SendMessageW(*pWnd, FirstMessage, 0, 0));
    EXPECT_EQ(0u, CWnd::GetAttachedCount());
}

TEST_F(MessageMap, KeepsAnExceptionOutOfTheWindowSystem)
{
    m_wnd.m_onMessage = [](WPARAM, LPARAM) -> LRESULT { throw std::runtime_error("in a handler"); };
    EXPECT_EQ(0, Send(FirstMessage, 0, 0));
    EXPECT_EQ(2, Send(SecondMessage, 0, 0)) << "the window goes on";
    EXPECT_EQ(0, m_wnd.Default()) << "nothing is under way afterwards";
}

TEST_F(MessageMap, HearsOfTheDestructionOfTheWindow)
{
    m_wnd.DestroyWindow();
    EXPECT_EQ(Calls {"destroy"}, m_wnd.m_calls);
}

TEST_F(DerivedMessageMap, ComesBeforeItsBases)
{
    EXPECT_EQ(22, Send(SecondMessage, 0, 0));
}

TEST_F(DerivedMessageMap, FallsBackToItsBases)
{
    m_wnd.m_onMessage = [](WPARAM, LPARAM) -> LRESULT { return 11; };
    EXPECT_EQ(11, Send(FirstMessage, 0, 0));
    Send(WM_TIMER, 3, 0);
    EXPECT_EQ(Calls {"timer 3"}, m_wnd.m_calls);
}
