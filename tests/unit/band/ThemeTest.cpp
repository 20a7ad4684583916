// The toolbar with the visual style switched off. The switch is the whole desktop's.

#include "band/TrelvixWindow.h"
#include "controls/IsolationAware.h"
#include "framework/Handles.h"
#include "tests/fakes/ToolbarRecorder.h"
#include "tests/unit/band/BandFixture.h"

namespace
{
/// Switches the visual style off, as the theme library does it for all programs.
void DisableVisualStyle()
{
    const CUniqueModule theme(LoadLibraryW(L"uxtheme.dll"));
    const auto pfnEnableTheming =
        reinterpret_cast<HRESULT(WINAPI*)(BOOL)>(reinterpret_cast<void*>(GetProcAddress(theme.get(), "EnableTheming")));
    ASSERT_NE(nullptr, pfnEnableTheming);
    EXPECT_EQ(S_OK, pfnEnableTheming(FALSE));
}

/// Lets the programs that start from now on have the visual style again.
void RestoreVisualStyle()
{
    constexpr wchar_t key[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\ThemeManager";
    EXPECT_EQ(ERROR_SUCCESS, RegSetKeyValueW(HKEY_CURRENT_USER, key, L"ThemeActive", REG_SZ, L"1", sizeof L"1"));
}

class VisualStyle : public CBandTest
{
protected:
    void SetUp() override
    {
        StoreSetting(L"Toolbar", L"Layout", L"00010004");
        Connect();
    }
    void TearDown() override
    {
        RestoreVisualStyle();
        CBandTest::TearDown();
    }

    /// The padding that the toolbar has after a change of the style has reached it.
    SIZE GetPadding()
    {
        const CToolbarRecorder recorder;
        SendMessageW(GetBandWindow(), WM_THEMECHANGED, 0, 0);
        const auto messages = recorder.GetMessages(TB_SETMETRICS);
        EXPECT_EQ(1u, messages.size());
        return {messages.front().metrics.cxPad, messages.front().metrics.cyPad};
    }
};
} // namespace

TEST_F(VisualStyle, GivesTheRoomAroundSplitButtonsBackWhenItIsSwitchedOff)
{
    const SIZE on = GetPadding();
    EXPECT_EQ(6, on.cx);
    EXPECT_EQ(-2, on.cy);
    DisableVisualStyle();
    ASSERT_FALSE(IsThemeActiveNow());
    const SIZE off = GetPadding();
    EXPECT_EQ(7, off.cx);
    EXPECT_EQ(6, off.cy);
}
