// The items are replaced, or the whole band is closed, from inside a call to one of them by the mouse, the keyboard, a
// paint or the layout itself. The memory of what is gone is poisoned.

#include "tests/fakes/BrowserEvent.h"
#include "tests/unit/band/WindowFixture.h"

#include <gmock/gmock.h>

#include <functional>
#include <ostream>

using testing::ElementsAre;
using testing::Not;

namespace
{
class LayoutChange;

/// A way into the items, and the name of the call by which they hear of it.
struct CWay
{
    const char* pszName;
    const char* pszCall;
    void (*pfnEnter)(LayoutChange& test);
};

void PrintTo(const CWay& way, std::ostream* pStream)
{
    *pStream << way.pszName;
}

class LayoutChange : public CWindowTest, public testing::WithParamInterface<CWay>
{
public:
    void Quit()
    {
        CBrowserEvent event = CBrowserEvent::OnQuit();
        m_spBrowser->Fire(event);
    }
    void Press()
    {
        const RECT rect = GetItemRect(3);
        Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(rect.left + 2, rect.top + 2));
        ReleaseCapture();
    }
    void Activate() { AskBandFor<IInputObject>()->UIActivateIO(TRUE, nullptr); }
    void TranslateKey()
    {
        MSG msg = {nullptr, WM_KEYDOWN, VK_RETURN, 0, 0, {}};
        AskBandFor<IInputObject>()->TranslateAcceleratorIO(&msg);
    }
    void MoveFocus() { GetToolbar().MoveFocus(true); }
    using CWindowTest::Send;

protected:
    void SetUp() override
    {
        CWindowTest::SetUp();
        GetItems()[2].bHasControl = true;
        for (const int nIndex : {3, 7, 8})
            GetItems()[nIndex].bFocusable = true;
        GetItems()[3].bHasFocus = true;
        GetItems()[7].bHasControl = true;
        GetItems()[3].bTakesFocus = false;
        ConnectWith({2, 6, 3, 7, 3});
        ShowFrame();
    }

    /// Enters the items on the tested way and acts within the first call that reaches one.
    void EnterAndAct(std::function<void()> act)
    {
        const std::string strCall = GetParam().pszCall;
        GetItems().m_onCall = [&, act](const std::string& strTold) {
            if (strTold.find(strCall) == std::string::npos)
                return;
            GetItems().m_onCall = nullptr;
            m_bActed = true;
            act();
        };
        GetParam().pfnEnter(*this);
        EXPECT_TRUE(m_bActed) << "no item was called by " << strCall;
    }

    /// Whether the tested call comes while a layout is made.
    static bool IsMakingALayout()
    {
        const std::string strCall = GetParam().pszCall;
        return strCall == "Initialize" || strCall == "Show" || strCall == "Place";
    }

    bool m_bActed = false;
};

const CWay Ways[] = {
    {"EventOfTheBrowsersEnd", "OnBrowserEvent", [](LayoutChange& test) { test.Quit(); }},
    {"IconClick", "OnIconClick", [](LayoutChange& test) { test.Press(); }},
    {"Paint", "Repaint", [](LayoutChange& test) { test.Send(WM_PAINT); }},
    {"Activation", "TakeFocus", [](LayoutChange& test) { test.Activate(); }},
    {"SearchBox", "TakeFocus", [](LayoutChange& test) { test.Send(0x3400); }},
    {"MoveFocus", "TakeFocus", [](LayoutChange& test) { test.MoveFocus(); }},
    {"Key", "TranslateKey", [](LayoutChange& test) { test.TranslateKey(); }},
    {"Creation", "Initialize", [](LayoutChange& test) { test.Send(WM_THEMECHANGED); }},
    {"Showing", "Show", [](LayoutChange& test) { test.Send(WM_THEMECHANGED); }},
    {"Placing", "Place", [](LayoutChange& test) { test.Send(WM_THEMECHANGED); }},
};

INSTANTIATE_TEST_SUITE_P(From, LayoutChange, testing::ValuesIn(Ways),
                         [](const auto& info) { return std::string(info.param.pszName); });
} // namespace

TEST_P(LayoutChange, LeavesTheWalkOnTheNewItems)
{
    EnterAndAct([&] {
        GetItems().TakeCalls();
        StoreItems({2, 5});
        GetToolbar().LoadLayout();
    });
    EXPECT_EQ(ButtonCount, GetItems().m_nLiving);
    EXPECT_THAT(GetItemsOnToolbar(), ElementsAre(0, 2, 5));
    if (IsMakingALayout())
        return; // the layout that was begun is brought to its end before the new one
    for (const std::string& strCall : GetItems().TakeCalls())
        EXPECT_THAT(strCall, Not(testing::StartsWith("7 "))) << "it no longer stands in the layout";
}

TEST_P(LayoutChange, ToALongerLayoutKeepsTheWalkInBounds)
{
    EnterAndAct([&] {
        StoreItems(std::vector<int>(49, 6));
        GetToolbar().LoadLayout();
    });
    EXPECT_EQ(ButtonCount, GetItems().m_nLiving);
    EXPECT_EQ(50u, GetItemsOnToolbar().size());
}

TEST_P(LayoutChange, ByTheClosingOfTheBandEndsTheWalk)
{
    EnterAndAct([&] {
        GetItems().TakeCalls();
        m_spBand->CloseDW(0);
    });
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre()) << "there is no item left to call";
    EXPECT_FALSE(IsWindow(GetBandWindow()));
    EXPECT_EQ(0, GetItems().m_nLiving);
}

TEST_P(LayoutChange, ByTheEndOfTheBandsConnectionEndsTheWalk)
{
    EnterAndAct([&] {
        m_spBand->CloseDW(0);
        GiveSite(nullptr);
        m_spBand = CreateBand();
    });
    EXPECT_EQ(0, GetItems().m_nLiving);
}

TEST_P(LayoutChange, ByASecondConnectionLeavesTheNewOneWhole)
{
    EnterAndAct([&] { Connect(); });
    EXPECT_EQ(ButtonCount, GetItems().m_nLiving);
    EXPECT_TRUE(IsWindow(GetBandWindow()));
}
