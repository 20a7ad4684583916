#include "broker/BrowserWindow.h"

#include "tests/fakes/TestWindow.h"

#include <windows.h>
#include <gtest/gtest.h>

namespace
{
constexpr wchar_t BrowserClass[] = L"IEFrame";

class BrowserWindow : public testing::Test
{
protected:
    BrowserWindow()
    {
        WNDCLASSW wc = {};
        wc.lpfnWndProc = DefWindowProcW;
        wc.lpszClassName = BrowserClass;
        RegisterClassW(&wc);
        m_hWnd = CreateWindowW(BrowserClass, L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 30, 700, 500, nullptr, nullptr,
                               nullptr, nullptr);
    }

    ~BrowserWindow() override
    {
        DestroyWindow(m_hWnd);
        UnregisterClassW(BrowserClass, nullptr);
    }

    HRESULT Resize(int cx, int cy)
    {
        const HRESULT hr = ResizeBrowserWindow(m_hWnd, {cx, cy});
        PumpMessages();
        return hr;
    }

    RECT GetRect() const
    {
        RECT rect = {};
        GetWindowRect(m_hWnd, &rect);
        return rect;
    }

    HWND m_hWnd;
};
} // namespace

TEST_F(BrowserWindow, TakesTheSizeAndStaysWhereItIs)
{
    EXPECT_EQ(S_OK, Resize(800, 600));
    const RECT rect = GetRect();
    EXPECT_EQ(40, rect.left);
    EXPECT_EQ(30, rect.top);
    EXPECT_EQ(840, rect.right);
    EXPECT_EQ(630, rect.bottom);
}

TEST_F(BrowserWindow, MayEndUpPartlyOffTheScreen)
{
    EXPECT_EQ(S_OK, Resize(GetSystemMetrics(SM_CXSCREEN), 600));
    EXPECT_EQ(40 + GetSystemMetrics(SM_CXSCREEN), GetRect().right);
    EXPECT_FALSE(IsZoomed(m_hWnd));
}

TEST_F(BrowserWindow, IsMaximisedForTheSizeOfTheScreen)
{
    EXPECT_EQ(S_OK, Resize(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)));
    EXPECT_TRUE(IsZoomed(m_hWnd));
    EXPECT_EQ(S_OK, Resize(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)));
    EXPECT_TRUE(IsZoomed(m_hWnd));
}

TEST_F(BrowserWindow, IsRestoredBeforeItTakesAnotherSize)
{
    ShowWindow(m_hWnd, SW_SHOWMAXIMIZED);
    EXPECT_EQ(S_OK, Resize(800, 600));
    EXPECT_FALSE(IsZoomed(m_hWnd));
    const RECT rect = GetRect();
    EXPECT_EQ(40, rect.left);
    EXPECT_EQ(800, rect.right - rect.left);
    EXPECT_EQ(600, rect.bottom - rect.top);
}

TEST_F(BrowserWindow, IsNoWindowOfAnotherClass)
{
    const CTestWindow window(300, 200);
    EXPECT_EQ(E_INVALIDARG, ResizeBrowserWindow(window, {800, 600}));
    EXPECT_EQ(E_INVALIDARG, ResizeBrowserWindow(GetDesktopWindow(), {800, 600}));
}

TEST_F(BrowserWindow, IsNoChildWindow)
{
    const HWND hChild = CreateWindowW(BrowserClass, L"", WS_CHILD, 0, 0, 10, 10, m_hWnd, nullptr, nullptr, nullptr);
    EXPECT_EQ(E_INVALIDARG, ResizeBrowserWindow(hChild, {800, 600}));
}

TEST_F(BrowserWindow, IsNoWindowThatHasGone)
{
    const HWND hGone = m_hWnd;
    DestroyWindow(m_hWnd);
    EXPECT_EQ(E_INVALIDARG, ResizeBrowserWindow(hGone, {800, 600}));
    EXPECT_EQ(E_INVALIDARG, ResizeBrowserWindow(nullptr, {800, 600}));
    EXPECT_EQ(E_INVALIDARG, ResizeBrowserWindow(HWND_BROADCAST, {800, 600}));
}
