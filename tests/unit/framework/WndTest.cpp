#include "framework/Wnd.h"

#include "framework/Module.h"
#include "tests/fakes/TestWindow.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <thread>

namespace
{
constexpr RECT SmallRect = {10, 20, 110, 70};

class CChildWnd : public CWnd
{
public:
    bool CreateChildOf(HWND hWndParent) { return CreateEx(0, nullptr, nullptr, WS_CHILD, SmallRect, hWndParent, 7); }
};

std::wstring GetClassOf(HWND hWnd)
{
    wchar_t szClass[64] = {};
    GetClassNameW(hWnd, szClass, ARRAYSIZE(szClass));
    return szClass;
}

WNDPROC GetProcedureOf(HWND hWnd)
{
    return reinterpret_cast<WNDPROC>(GetWindowLongPtrW(hWnd, GWLP_WNDPROC));
}
} // namespace

TEST(Wnd, CreatesTheWindowWithTheGivenPlaceParentAndNumber)
{
    const CTestWindow parent;
    CChildWnd wnd;
    ASSERT_TRUE(wnd.CreateChildOf(parent));
    EXPECT_EQ(parent, GetParent(wnd));
    EXPECT_EQ(7, GetDlgCtrlID(wnd));
    RECT rect = {};
    GetWindowRect(wnd, &rect);
    MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&rect), 2);
    EXPECT_TRUE(EqualRect(&SmallRect, &rect));
}

TEST(Wnd, HasAPlainClassOfItsOwnWhenNoneIsNamed)
{
    const CTestWindow parent;
    CChildWnd first;
    CChildWnd second;
    ASSERT_TRUE(first.CreateChildOf(parent));
    ASSERT_TRUE(second.CreateChildOf(parent));
    EXPECT_FALSE(GetClassOf(first).empty());
    EXPECT_EQ(GetClassOf(first), GetClassOf(second));
    EXPECT_EQ(reinterpret_cast<ULONG_PTR>(AfxGetInstanceHandle()), GetClassLongPtrW(first, GCLP_HMODULE));
}

TEST(Wnd, IsNotCreatedOfAnUnknownClass)
{
    CWnd wnd;
    EXPECT_FALSE(wnd.CreateEx(0, L"no such class", nullptr, WS_POPUP, SmallRect, nullptr, 0));
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ(0u, CWnd::GetAttachedCount());
}

TEST(Wnd, KeepsItsFirstWindowWhenASecondIsCreated)
{
    const CTestWindow parent;
    CChildWnd wnd;
    ASSERT_TRUE(wnd.CreateChildOf(parent));
    const HWND hFirst = wnd;
    EXPECT_FALSE(wnd.CreateChildOf(parent));
    EXPECT_EQ(hFirst, wnd.m_hWnd);
    EXPECT_EQ(nullptr, GetWindow(hFirst, GW_HWNDNEXT));
}

TEST(Wnd, IsFoundByItsHandleWhileItIsAttached)
{
    const CTestWindow parent;
    CChildWnd wnd;
    ASSERT_TRUE(wnd.CreateChildOf(parent));
    const HWND hWnd = wnd;
    EXPECT_EQ(&wnd, CWnd::FromHandlePermanent(hWnd));
    EXPECT_EQ(1u, CWnd::GetAttachedCount());
    wnd.DestroyWindow();
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hWnd));
    EXPECT_EQ(0u, CWnd::GetAttachedCount());
}

TEST(Wnd, DestroysItsWindowWithItself)
{
    const CTestWindow parent;
    HWND hWnd = nullptr;
    {
        CChildWnd wnd;
        ASSERT_TRUE(wnd.CreateChildOf(parent));
        hWnd = wnd;
    }
    EXPECT_FALSE(IsWindow(hWnd));
    EXPECT_EQ(0u, CWnd::GetAttachedCount());
}

TEST(Wnd, ForgetsAWindowThatWentWithItsParent)
{
    auto parent = std::make_unique<CTestWindow>();
    CChildWnd wnd;
    ASSERT_TRUE(wnd.CreateChildOf(*parent));
    parent.reset();
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_FALSE(wnd.DestroyWindow());
}

TEST(Wnd, PutsItsMapInFrontOfAnExistingWindowAndTakesItOff)
{
    const CTestWindow window;
    const WNDPROC pfnBefore = GetProcedureOf(window);
    CWnd wnd;
    ASSERT_TRUE(wnd.SubclassWindow(window));
    EXPECT_NE(pfnBefore, GetProcedureOf(window));
    EXPECT_EQ(window, wnd.UnsubclassWindow());
    EXPECT_EQ(pfnBefore, GetProcedureOf(window));
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ(nullptr, wnd.UnsubclassWindow());
    EXPECT_TRUE(IsWindow(window));
}

TEST(Wnd, DoesNotAttachWhatIsNoWindow)
{
    CWnd wnd;
    EXPECT_FALSE(wnd.SubclassWindow(nullptr));
    EXPECT_FALSE(wnd.SubclassWindow(reinterpret_cast<HWND>(0x7ffe)));
    EXPECT_EQ(nullptr, wnd.m_hWnd);
}

TEST(Wnd, DoesNotAttachAWindowThatAnotherObjectHolds)
{
    const CTestWindow window;
    CWnd first;
    CWnd second;
    ASSERT_TRUE(first.SubclassWindow(window));
    EXPECT_FALSE(second.SubclassWindow(window));
    EXPECT_EQ(&first, CWnd::FromHandlePermanent(window));
    first.UnsubclassWindow();
}

TEST(Wnd, DoesNotAttachAWindowOfAnotherThread)
{
    const CTestWindow window;
    bool bAttached = true;
    std::thread([&] { bAttached = CWnd().SubclassWindow(window); }).join();
    EXPECT_FALSE(bAttached);
    EXPECT_TRUE(IsWindow(window));
}

TEST(Wnd, LeavesUnmappedMessagesToTheWindowsOwnProcedure)
{
    const CTestWindow window;
    CWnd wnd;
    ASSERT_TRUE(wnd.SubclassWindow(window));
    SetWindowTextW(window, L"through");
    wchar_t szText[16] = {};
    EXPECT_EQ(7, SendMessageW(window, WM_GETTEXT, ARRAYSIZE(szText), reinterpret_cast<LPARAM>(szText)));
    EXPECT_STREQ(L"through", szText);
    wnd.UnsubclassWindow();
}
