#include "controls/IsolationAware.h"

#include "framework/Handles.h"
#include "framework/Module.h"
#include "tests/fakes/TestWindow.h"
#include "tests/unit/controls/ActivationContext.h"

#include <windows.h>
#include <commctrl.h>
#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace
{
constexpr WORD TestDialog = 5000;
constexpr WORD NoDialog = 5001;
constexpr INT_PTR DialogFailed = -1;

/// What a dialog saw while it was being made.
struct CSight
{
    bool bRedirected = false;
};

INT_PTR CALLBACK LookAround(HWND hDlg, UINT message, WPARAM, LPARAM lParam)
{
    if (message != WM_INITDIALOG)
        return FALSE;
    reinterpret_cast<CSight*>(lParam)->bRedirected = AreCommonControlsRedirected();
    EndDialog(hDlg, 42);
    return TRUE;
}

INT_PTR RunDialog(WORD wTemplate, CSight& sight)
{
    return IsolatedDialogBoxParam(AfxGetInstanceHandle(), MAKEINTRESOURCEW(wTemplate), nullptr, &LookAround,
                                  reinterpret_cast<LPARAM>(&sight));
}

/// Each test leaves the thread's context as it was.
class IsolationAware : public testing::Test
{
protected:
    void TearDown() override { EXPECT_EQ(m_hBefore, GetContextInForce()); }

    const HANDLE m_hBefore = GetContextInForce();
};
} // namespace

TEST_F(IsolationAware, LoadsALibrary)
{
    const CUniqueModule library(IsolatedLoadLibrary(L"version.dll"));
    EXPECT_EQ(GetModuleHandleW(L"version.dll"), library.get());
}

TEST_F(IsolationAware, KeepsTheErrorOfALibraryThatIsNotThere)
{
    SetLastError(ERROR_SUCCESS);
    EXPECT_EQ(nullptr, IsolatedLoadLibrary(L"no such library.dll"));
    EXPECT_EQ(static_cast<DWORD>(ERROR_MOD_NOT_FOUND), GetLastError());
}

TEST_F(IsolationAware, RunsADialogUnderTheModulesManifest)
{
    CSight sight;
    ASSERT_FALSE(AreCommonControlsRedirected());
    EXPECT_EQ(42, RunDialog(TestDialog, sight));
    EXPECT_TRUE(sight.bRedirected);
}

TEST_F(IsolationAware, FailsForADialogThatIsNotThere)
{
    CSight sight;
    SetLastError(ERROR_SUCCESS);
    EXPECT_EQ(DialogFailed, RunDialog(NoDialog, sight));
    EXPECT_NE(static_cast<DWORD>(ERROR_SUCCESS), GetLastError());
}

TEST_F(IsolationAware, TracksTheMouse)
{
    TRACKMOUSEEVENT track = {sizeof track, TME_QUERY, nullptr, 0};
    EXPECT_TRUE(IsolatedTrackMouseEvent(&track));
    EXPECT_EQ(0u, track.dwFlags) << "nothing is tracked";
}

TEST_F(IsolationAware, FailsToTrackTheMouseForAWrongRecord)
{
    TRACKMOUSEEVENT track = {1, TME_QUERY, nullptr, 0};
    EXPECT_FALSE(IsolatedTrackMouseEvent(&track));
}

TEST_F(IsolationAware, GivesAWindowAnotherTheme)
{
    const CTestWindow window;
    EXPECT_TRUE(SetThemeOfWindow(window, L"Explorer", nullptr));
    EXPECT_TRUE(SetThemeOfWindow(window, nullptr, nullptr));
}

TEST_F(IsolationAware, GivesNoThemeToWhatIsNoWindow)
{
    EXPECT_FALSE(SetThemeOfWindow(nullptr, L"Explorer", nullptr));
}

TEST_F(IsolationAware, KnowsWhetherAVisualStyleIsActive)
{
    const CUniqueModule theme(LoadLibraryW(L"uxtheme.dll"));
    ASSERT_NE(nullptr, theme);
    const auto pfnIsThemeActive =
        reinterpret_cast<BOOL(WINAPI*)()>(reinterpret_cast<void*>(GetProcAddress(theme.get(), "IsThemeActive")));
    ASSERT_NE(nullptr, pfnIsThemeActive);
    EXPECT_EQ(pfnIsThemeActive() != FALSE, IsThemeActiveNow());
}

TEST_F(IsolationAware, ServesSeveralThreadsAtOnce)
{
    std::vector<std::thread> threads;
    std::vector<CSight> sights(4);
    for (CSight& sight : sights)
        threads.emplace_back([&sight] {
            for (int n = 0; n < 20; ++n)
                EXPECT_EQ(42, RunDialog(TestDialog, sight));
        });
    for (std::thread& thread : threads)
        thread.join();
    for (const CSight& sight : sights)
        EXPECT_TRUE(sight.bRedirected);
}
