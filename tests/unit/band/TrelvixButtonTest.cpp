#include "band/TrelvixButton.h"

#include "tests/fakes/ProductModule.h"
#include "tests/unit/band/BandFixture.h"

namespace
{
/// An item with the defaults of the frame and a chosen index.
class CPlainButton : public CTrelvixButton
{
public:
    explicit CPlainButton(int nIndex) { m_nButtonId = nIndex; }

    using CTrelvixButton::m_bHasControl;
};
} // namespace

TEST(TrelvixButton, StartsInertAndNameless)
{
    const CTrelvixButton button;
    const TBBUTTON& record = button.GetTBButton();
    EXPECT_EQ(-1, button.GetButtonId());
    EXPECT_FALSE(button.IsVisible());
    EXPECT_FALSE(button.HasControl());
    EXPECT_FALSE(button.IsFocusable());
    EXPECT_EQ(0, record.iBitmap);
    EXPECT_EQ(0, record.idCommand);
    EXPECT_EQ(0, record.fsState);
    EXPECT_EQ(0, record.fsStyle);
    EXPECT_EQ(0u, record.dwData);
    EXPECT_EQ(0, record.iString);
}

TEST(TrelvixButton, FillsItsRecordWithoutAWindow)
{
    CPlainButton button(6);
    EXPECT_TRUE(button.Initialize(nullptr));
    const TBBUTTON& record = button.GetTBButton();
    EXPECT_EQ(6, record.iBitmap);
    EXPECT_EQ(1030, record.idCommand);
    EXPECT_EQ(TBSTATE_ENABLED, record.fsState);
    EXPECT_EQ(0, record.fsStyle);
    EXPECT_EQ(6u, record.dwData);
}

TEST(TrelvixButton, IsShownAndHidden)
{
    CPlainButton button(6);
    button.Show(true);
    EXPECT_TRUE(button.IsVisible());
    button.Show(false);
    EXPECT_FALSE(button.IsVisible());
}

TEST(TrelvixButton, LoadsItsLabelByItsIndex)
{
    CPlainButton button(6);
    EXPECT_STREQ(L"Spy other IE Instances", button.GetLabel());
    EXPECT_EQ(button.GetLabel(), button.GetLabel()) << "once";
}

TEST(TrelvixButton, HasAnEmptyLabelWhenThereIsNoText)
{
    CPlainButton button(-1);
    EXPECT_STREQ(L"", button.GetLabel());
}

TEST(TrelvixButton, ClosesItsLabelListTwice)
{
    CPlainButton button(5);
    const wchar_t* const pszList = button.GetLabelList();
    EXPECT_EQ(std::wstring(L"Color Picker\0\0", 14), std::wstring(pszList, 14));
    EXPECT_EQ(pszList, button.GetLabelList());
}

TEST(TrelvixButton, ShowsAnotherTextWhenItIsGivenOne)
{
    CPlainButton button(5);
    button.GetLabel();
    button.SetLabel(L"Pick");
    EXPECT_STREQ(L"Pick", button.GetLabel());
    EXPECT_EQ(std::wstring(L"Pick\0\0", 6), std::wstring(button.GetLabelList(), 6));
    button.SetLabel(L"");
    EXPECT_STREQ(L"", button.GetLabel());
    EXPECT_EQ(std::wstring(L"\0\0", 2), std::wstring(button.GetLabelList(), 2));
}

TEST(TrelvixButton, TakesItsOwnLabelAsANewOne)
{
    CPlainButton button(5);
    button.SetLabel(button.GetLabel());
    EXPECT_STREQ(L"Color Picker", button.GetLabel());
}

TEST(TrelvixButton, IsPlacedNowhereWithoutAWindow)
{
    CPlainButton button(5);
    EXPECT_TRUE(button.Place());
    button.m_bHasControl = true;
    EXPECT_TRUE(button.Place());
}

TEST(TrelvixButton, AnswersEveryCallWithTheDefaultOfTheFrame)
{
    CPlainButton button(5);
    MSG msg = {};
    bool bContinueScripts = true;
    bool bNotHandled = true;
    EXPECT_TRUE(button.OnCommand(1029));
    EXPECT_FALSE(button.HasFocus());
    EXPECT_FALSE(button.TakeFocus());
    EXPECT_EQ(S_OK, button.TranslateKey(&msg));
    EXPECT_FALSE(button.OnIconClick(0, POINT {}));
    EXPECT_FALSE(button.OnDropDown(nullptr, 1029));
    EXPECT_FALSE(button.Repaint());
    EXPECT_FALSE(button.OnScriptError(nullptr, &bContinueScripts, &bNotHandled));
    EXPECT_TRUE(bContinueScripts);
    EXPECT_TRUE(bNotHandled);
}

TEST(TrelvixButton, IgnoresEveryNotification)
{
    CPlainButton button(5);
    ITVXEvents& events = button;
    events.OnPageLoadBegin(nullptr, nullptr);
    events.OnPageLoadComplete(nullptr, nullptr);
    events.OnFrameLoadBegin(nullptr, nullptr, nullptr);
    events.OnFrameLoadComplete(nullptr, nullptr);
    events.OnPageRefreshBegin(nullptr, nullptr);
    events.OnPageRefreshComplete();
    events.OnFrameRefreshBegin(nullptr, nullptr, nullptr);
    events.OnFrameRefreshComplete();
    events.OnSpareEvent();
    button.OnBrowserEvent(0, IID_NULL, 0, 0, nullptr, nullptr, nullptr, nullptr);
    EXPECT_FALSE(button.IsVisible());
}

TEST(TrelvixButton, IsCreatedByItsRunTimeClass)
{
    const std::unique_ptr<CObject> pObject = RUNTIME_CLASS(CTrelvixButton)->CreateObject();
    ASSERT_NE(nullptr, pObject);
    EXPECT_EQ(RUNTIME_CLASS(CTrelvixButton), pObject->GetRuntimeClass());
}
