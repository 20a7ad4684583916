// The keyboard's way into, through and out of the toolbar.

#include "tests/unit/band/WindowFixture.h"

#include <gmock/gmock.h>

#include <array>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
/// Holds the Shift key down for this thread, while the object lives.
class CShiftKey
{
public:
    CShiftKey() { Press(0x80); }
    CShiftKey(const CShiftKey&) = delete;
    CShiftKey& operator=(const CShiftKey&) = delete;
    ~CShiftKey() { Press(0); }

private:
    static void Press(BYTE state)
    {
        std::array<BYTE, 256> keys = {};
        GetKeyboardState(keys.data());
        keys[VK_SHIFT] = state;
        SetKeyboardState(keys.data());
    }
};

class ToolbarFocus : public CWindowTest
{
protected:
    void SetUp() override
    {
        CWindowTest::SetUp();
        for (const int nIndex : {3, 7, 8})
            GetItems()[nIndex].bFocusable = true;
    }

    HRESULT Activate(bool bActivate = true) { return AskBandFor<IInputObject>()->UIActivateIO(bActivate, nullptr); }
    HRESULT HasFocus() { return AskBandFor<IInputObject>()->HasFocusIO(); }
    HRESULT Translate(MSG msg) { return AskBandFor<IInputObject>()->TranslateAcceleratorIO(&msg); }
    void GiveFocusTo(int nIndex) { GetItems()[nIndex].bHasFocus = true; }
    /// Sends the message by which another component asks for the search box.
    void AskForSearchBox() { EXPECT_EQ(0, Send(0x3400)); }
};
} // namespace

TEST_F(ToolbarFocus, EntersAtTheFirstBox)
{
    ConnectWith({2, 7, 3, 8});
    EXPECT_EQ(S_OK, Activate());
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("7 TakeFocus"));
}

TEST_F(ToolbarFocus, EntersAtTheNextBoxWhenOneDeclines)
{
    GetItems()[7].bTakesFocus = false;
    ConnectWith({2, 7, 3, 8});
    EXPECT_EQ(S_OK, Activate());
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("7 TakeFocus", "3 TakeFocus"));
}

TEST_F(ToolbarFocus, EntersAtTheLastBoxWithShift)
{
    ConnectWith({2, 7, 3, 8, 2});
    const CShiftKey shift;
    EXPECT_EQ(S_OK, Activate());
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("8 TakeFocus"));
}

TEST_F(ToolbarFocus, EntersAtThePreviousBoxWithShiftWhenOneDeclines)
{
    GetItems()[8].bTakesFocus = false;
    ConnectWith({7, 3, 8});
    const CShiftKey shift;
    EXPECT_EQ(S_OK, Activate());
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("8 TakeFocus", "3 TakeFocus"));
}

TEST_F(ToolbarFocus, EntersNowhereWhenNoItemTakesTheFocus)
{
    ConnectWith({2, 5});
    EXPECT_EQ(S_OK, Activate());
    const CShiftKey shift;
    EXPECT_EQ(S_OK, Activate());
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
}

TEST_F(ToolbarFocus, IsLeftWithoutACall)
{
    ConnectWith({3});
    EXPECT_EQ(S_OK, Activate(false));
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
}

TEST_F(ToolbarFocus, PassesOverABoxOutsideTheLayout)
{
    ConnectWith({8});
    EXPECT_EQ(S_OK, Activate());
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("8 TakeFocus"));
}

TEST_F(ToolbarFocus, StandsInAVisibleItem)
{
    ConnectWith({2, 3});
    EXPECT_EQ(S_FALSE, HasFocus());
    GiveFocusTo(7);
    EXPECT_EQ(S_FALSE, HasFocus()) << "it doesn't stand in the layout";
    GiveFocusTo(3);
    EXPECT_EQ(S_OK, HasFocus());
}

TEST_F(ToolbarFocus, StandsInAnItemThatIsNotFocusable)
{
    ConnectWith({2});
    GiveFocusTo(2);
    EXPECT_EQ(S_OK, HasFocus());
}

TEST_F(ToolbarFocus, StandsInTheControlItself)
{
    ConnectWith({2});
    ShowFrame();
    SetFocus(GetBandWindow());
    ASSERT_EQ(GetBandWindow(), GetFocus());
    EXPECT_EQ(S_OK, HasFocus());
    SetFocus(m_frame);
    EXPECT_EQ(S_FALSE, HasFocus());
}

TEST_F(ToolbarFocus, GivesKeysToTheBoxThatHasIt)
{
    ConnectWith({3, 7});
    GiveFocusTo(7);
    EXPECT_EQ(S_OK, Translate({nullptr, WM_KEYDOWN, VK_RETURN, 0, 0, {}}));
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("7 TranslateKey 13"));
    GetItems()[7].hrTranslateKey = S_FALSE;
    EXPECT_EQ(S_FALSE, Translate({nullptr, WM_KEYDOWN, 'A', 0, 0, {}}));
}

TEST_F(ToolbarFocus, GivesKeysToTheFirstOfSeveralThatHaveIt)
{
    ConnectWith({8, 3});
    GiveFocusTo(3);
    GiveFocusTo(8);
    Translate({nullptr, WM_KEYDOWN, 'A', 0, 0, {}});
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("8 TranslateKey 65"));
}

TEST_F(ToolbarFocus, GivesNoKeysToOthers)
{
    ConnectWith({2, 3});
    GiveFocusTo(2); // not focusable
    GiveFocusTo(7); // not in the layout
    EXPECT_EQ(S_FALSE, Translate({nullptr, WM_KEYDOWN, 'A', 0, 0, {}}));
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
}

TEST_F(ToolbarFocus, SeesFiftyItemsAndNoMore)
{
    std::vector<int> items(49, 2);
    items.back() = 3;
    ConnectWith(items);
    GiveFocusTo(3);
    EXPECT_EQ(S_OK, Translate({nullptr, WM_KEYDOWN, 'A', 0, 0, {}}));
    EXPECT_EQ(S_FALSE, GetToolbar().MoveFocus(true));
}

TEST_F(ToolbarFocus, MovesToTheNextBoxAndTellsTheSite)
{
    ConnectWith({3, 2, 7, 8});
    GiveFocusTo(3);
    EXPECT_EQ(S_OK, GetToolbar().MoveFocus(true));
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("7 TakeFocus"));
    ASSERT_EQ(1u, m_spSite->m_focusChanges.size());
    EXPECT_EQ(AskBandFor<IUnknown>().Get(), m_spSite->m_focusChanges.front().pBand);
    EXPECT_TRUE(m_spSite->m_focusChanges.front().bFocus);
}

TEST_F(ToolbarFocus, MovesBackToThePreviousBox)
{
    ConnectWith({3, 2, 7, 8});
    GiveFocusTo(7);
    EXPECT_EQ(S_OK, GetToolbar().MoveFocus(false));
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("3 TakeFocus"));
    EXPECT_EQ(1u, m_spSite->m_focusChanges.size());
}

TEST_F(ToolbarFocus, MovesEvenToABoxThatDeclines)
{
    GetItems()[7].bTakesFocus = false;
    ConnectWith({3, 7, 8});
    GiveFocusTo(3);
    EXPECT_EQ(S_OK, GetToolbar().MoveFocus(true));
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("7 TakeFocus"));
}

TEST_F(ToolbarFocus, LeavesTheBandAtEitherEnd)
{
    ConnectWith({2, 3, 7, 2});
    GiveFocusTo(7);
    EXPECT_EQ(S_FALSE, GetToolbar().MoveFocus(true));
    GetItems()[7].bHasFocus = false;
    GiveFocusTo(3);
    EXPECT_EQ(S_FALSE, GetToolbar().MoveFocus(false));
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
    EXPECT_EQ(0u, m_spSite->m_focusChanges.size());
}

TEST_F(ToolbarFocus, MovesNowhereWithoutStandingInABox)
{
    ConnectWith({3, 7});
    EXPECT_EQ(S_FALSE, GetToolbar().MoveFocus(true));
    EXPECT_EQ(S_FALSE, GetToolbar().MoveFocus(false));
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
}

TEST_F(ToolbarFocus, MovesWithoutASiteToTell)
{
    ConnectWith({3, 7});
    GiveSite(nullptr);
    GiveFocusTo(3);
    EXPECT_EQ(S_OK, GetToolbar().MoveFocus(true));
    EXPECT_EQ(0u, m_spSite->m_focusChanges.size());
}

TEST_F(ToolbarFocus, GoesToTheSearchBoxOnDemand)
{
    ConnectWith({7, 3, 8});
    ShowFrame();
    AskForSearchBox();
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("3 TakeFocus"));
}

TEST_F(ToolbarFocus, GoesToTheSearchBoxOnceWhenItIsListedTwice)
{
    ConnectWith({3, 3});
    ShowFrame();
    AskForSearchBox();
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("3 TakeFocus"));
}

TEST_F(ToolbarFocus, StaysWhenThereIsNoSearchBox)
{
    ConnectWith({7, 8});
    ShowFrame();
    AskForSearchBox();
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
}

TEST_F(ToolbarFocus, StaysWhenTheSearchBoxIsNotFocusable)
{
    GetItems()[3].bFocusable = false;
    ConnectWith({3});
    ShowFrame();
    AskForSearchBox();
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
}

TEST_F(ToolbarFocus, StaysWhileTheToolbarIsHidden)
{
    ConnectWith({3});
    ShowFrame();
    m_spBand->ShowDW(FALSE);
    GetItems().TakeCalls();
    AskForSearchBox();
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
}
