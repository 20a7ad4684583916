// The fourteen items as the window makes them.

#include "band/ButtonTable.h"

#include "band/TrelvixButton.h"
#include "band/TrelvixWindow.h"
#include "settings/LanguagePack.h"
#include "tests/fakes/ToolbarRecorder.h"
#include "tests/unit/band/BandFixture.h"
#include "tools/ButtonSearchInPage.h"
#include "tools/ButtonSeparator.h"
#include "tools/ButtonZoom.h"

#include <ostream>

namespace
{
struct CRow
{
    int nIndex;
    const char* pszClass;
    BYTE fsStyle;
    bool bHasControl;
    bool bFocusable;
    const wchar_t* pszLabel;
};

constexpr CRow Rows[] = {
    {0, "CButtonRootMenu", 0x80, false, false, L"Trelvix"},
    {1, "CButtonSeparator", 1, true, false, L"Separator"},
    {2, "CButtonShowInfoBar", 0x0A, false, false, L"Toggle Trelvix"},
    {3, "CButtonSearchGoogle", 1, true, true, L"Google Search (Alt+Q)"},
    {4, "CButtonEmailScreenShotPage", 0x18, false, false, L"Send Web Page screenshot by email"},
    {5, "CButtonColorPicker", 0x18, false, false, L"Color Picker"},
    {6, "CButtonConnectToIEInstance", 0, false, false, L"Spy other IE Instances"},
    {7, "CButtonSearchInPage", 1, true, true, L"Highlight in page"},
    {8, "CButtonZoom", 1, true, true, L"Zoom"},
    {9, "CButtonScriptErrorAlert", 0, false, false, L"Script Error Notification"},
    {10, "CButtonResizeIEWindow", 0x90, false, false, L"Resize Internet Explorer Window"},
    {11, "CButtonViewSource", 0x18, false, false, L"View Source (Alt+S)"},
    {12, "CButtonRenderingMode", 0x90, false, false, L"Rendering Mode"},
    {13, "CButtonOpenPellatron", 0x90, false, false, L"Open URL in Pellatron"},
};

void PrintTo(const CRow& row, std::ostream* pStream)
{
    *pStream << row.pszClass;
}

class ButtonTable : public CBandTest, public testing::WithParamInterface<CRow>
{
protected:
    void SetUp() override { Connect(); }

    CTrelvixButton& GetButton() { return *GetToolbar().GetButton(GetParam().nIndex); }

    /// The text with the number in the control's pool.
    std::wstring GetPoolText(INT_PTR nString)
    {
        wchar_t szText[128] = {};
        SendMessageW(GetBandWindow(), TB_GETSTRINGW, MAKEWPARAM(ARRAYSIZE(szText), nString),
                     reinterpret_cast<LPARAM>(szText));
        return szText;
    }
};

INSTANTIATE_TEST_SUITE_P(EachItem, ButtonTable, testing::ValuesIn(Rows),
                         [](const auto& info) { return std::string(info.param.pszClass); });
} // namespace

TEST_P(ButtonTable, HasTheClassAtItsIndex)
{
    EXPECT_STREQ(GetParam().pszClass, GetButtonTable()[GetParam().nIndex]->m_lpszClassName);
    EXPECT_EQ(GetButtonTable()[GetParam().nIndex], GetButton().GetRuntimeClass());
    EXPECT_TRUE(GetButton().IsKindOf(RUNTIME_CLASS(CTrelvixButton)));
    EXPECT_EQ(GetParam().nIndex, GetButton().GetButtonId());
}

TEST_P(ButtonTable, GivesTheItemItsRecord)
{
    const bool bSeparator = GetParam().nIndex == SeparatorIndex;
    const TBBUTTON& button = GetButton().GetTBButton();
    EXPECT_EQ(GetParam().nIndex, button.iBitmap);
    EXPECT_EQ(GetParam().nIndex + 1024, button.idCommand);
    EXPECT_EQ(TBSTATE_ENABLED, button.fsState);
    EXPECT_EQ(GetParam().fsStyle, button.fsStyle);
    EXPECT_EQ(bSeparator ? 0u : GetParam().nIndex, button.dwData);
}

TEST_P(ButtonTable, GivesTheItemItsPlaceInTheFocus)
{
    EXPECT_EQ(GetParam().bHasControl, GetButton().HasControl());
    EXPECT_EQ(GetParam().bFocusable, GetButton().IsFocusable());
}

TEST_P(ButtonTable, NamesTheItemByTheStringOfItsIndex)
{
    std::wstring strLabel;
    EXPECT_NE(0, LoadTranslatedString(strLabel, 1000 + GetParam().nIndex));
    EXPECT_EQ(GetParam().pszLabel, strLabel);
}

TEST_P(ButtonTable, PutsTheLabelIntoTheControl)
{
    const TBBUTTON& button = GetButton().GetTBButton();
    if (GetParam().nIndex == SeparatorIndex)
    {
        EXPECT_EQ(0, button.iString);
        EXPECT_STREQ(L"", GetButton().GetLabel()) << "a gap has no tooltip";
        return;
    }
    EXPECT_EQ(GetParam().pszLabel, GetPoolText(button.iString));
    if (GetParam().nIndex != RenderingModeIndex) // its label tells the mode of the document
    {
        EXPECT_STREQ(GetParam().pszLabel, GetButton().GetLabel());
    }
}

TEST_P(ButtonTable, StandsWithOrWithoutTheItemInTheLayout)
{
    StoreSetting(L"Toolbar", L"Layout", L"00000002");
    GetToolbar().LoadLayout();
    ASSERT_NE(nullptr, GetToolbar().GetButton(GetParam().nIndex));
    EXPECT_EQ(GetParam().nIndex == RootMenuIndex, GetButton().IsVisible());
}

namespace
{
class ItemOfWidth : public CBandTest
{
protected:
    int GetWidth(int nPosition)
    {
        RECT rect = {};
        SendMessageW(GetBandWindow(), TB_GETITEMRECT, nPosition, reinterpret_cast<LPARAM>(&rect));
        return rect.right - rect.left;
    }
};
} // namespace

TEST_F(ItemOfWidth, KeepsItsPlaceOpenOnTheToolbar)
{
    StoreSetting(L"Toolbar", L"Layout", L"0001000100010003000100010001000700010008");
    Connect();
    EXPECT_EQ(10, GetWidth(1));
    EXPECT_EQ(200, GetWidth(2));
    EXPECT_EQ(10, GetWidth(3)) << "each gap is as wide as the first";
    EXPECT_EQ(200, GetWidth(4));
    EXPECT_EQ(60, GetWidth(5));
}

TEST_F(ItemOfWidth, AddressesEachGapByItsPosition)
{
    StoreSetting(L"Toolbar", L"Layout", L"000100010001000200010001");
    const CToolbarRecorder recorder;
    Connect();
    const auto messages = recorder.GetMessages(TB_SETBUTTONINFOW);
    ASSERT_EQ(2u, messages.size());
    EXPECT_EQ(1u, messages[0].wParam);
    EXPECT_EQ(3u, messages[1].wParam);
    for (const CToolbarMessage& message : messages)
    {
        EXPECT_EQ(0x80000048, message.buttonInfo.dwMask);
        EXPECT_EQ(48u, message.buttonInfo.cbSize);
        EXPECT_EQ(BTNS_SEP, message.buttonInfo.fsStyle);
        EXPECT_EQ(10, message.buttonInfo.cx);
    }
}

namespace
{
/// A class that wants another width than its base's default.
template <class Base>
class CWideButton : public Base
{
public:
    CWideButton() { this->m_nControlWidth = 333; }

    int GetWidth() const { return this->m_nControlWidth; }
};
} // namespace

TEST(WidthOfAnItem, IsKeptWhenAClassHasStoredOneBefore)
{
    CWideButton<CButtonSeparator> gap;
    CWideButton<CButtonSearchInPage> box;
    gap.Initialize(nullptr);
    box.Initialize(nullptr);
    EXPECT_EQ(333, gap.GetWidth());
    EXPECT_EQ(333, box.GetWidth());
}

TEST(WidthOfAnItem, IsTheZoomBoxesOwnWhateverWasStored)
{
    CWideButton<CButtonZoom> box;
    box.Initialize(nullptr);
    EXPECT_EQ(60, box.GetWidth());
}
