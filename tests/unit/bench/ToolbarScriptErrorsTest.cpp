// The toolbar's window on a real page: what its items get of the errors of the page's scripts.

#include "band/TrelvixWindow.h"
#include "tests/fakes/FakeButton.h"
#include "tests/fakes/FakeSettingsBroker.h"
#include "tests/fakes/ProductModule.h"
#include "tests/fakes/TestWindow.h"
#include "tests/unit/bench/BrowserFixture.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>

using testing::IsEmpty;

namespace
{
constexpr DWORD ToolbarStyle = WS_CHILD | WS_VISIBLE | TBSTYLE_LIST | TBSTYLE_FLAT | CCS_NODIVIDER | CCS_NOPARENTALIGN |
                               CCS_NORESIZE | CCS_NOMOVEY | CCS_TOP;
constexpr RECT ToolbarRect = {0, 0, 1200, 30};
} // namespace

class ToolbarScriptErrors : public CBrowserTest
{
protected:
    void SetUp() override
    {
        CBrowserTest::SetUp();
        GetItems().Reset();
        GetItem().bTakesScriptErrors = true;
        m_pWindow->SetWebBrowser(m_spBrowser.Get());
        ASSERT_TRUE(m_pWindow->Create(ToolbarStyle, ToolbarRect, m_parent, ToolbarControlId));
        GetRecorder().SetAction([this](DISPID dispid, const DISPPARAMS& params) {
            m_pWindow->Invoke(dispid, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, const_cast<DISPPARAMS*>(&params),
                              nullptr, nullptr, nullptr);
        });
        GetItems().m_onCall = [this](const std::string& call) {
            m_nTaken += call == std::to_string(ScriptErrorAlertIndex) + " OnScriptError" ? 1 : 0;
        };
        Serve("/frame.html", "<script>function fail() { missingInFrame(); }</script>");
        Serve("/page.html", "<title>Page</title><iframe src=/frame.html></iframe>"
                            "<script>function fail() { missing(); }</script>");
        Load(L"/page.html");
    }

    void TearDown() override
    {
        GetRecorder().SetAction(nullptr);
        GetItems().m_onCall = nullptr;
        m_pWindow.reset();
        CBrowserTest::TearDown();
        GetItems().Reset();
    }

    static CFakeButtons& GetItems() { return CFakeButtons::Get(); }
    static CFakeButtons::CTraits& GetItem() { return GetItems()[ScriptErrorAlertIndex]; }

    bool PumpUntilTaken()
    {
        return PumpUntil([this] { return m_nTaken == 1; });
    }

    CProductModule m_module;
    CFakeSettingsBrokerServer m_broker;
    CTestWindow m_parent;
    std::unique_ptr<CTrelvixWindow> m_pWindow = std::make_unique<CTrelvixWindow>();
    int m_nTaken = 0;
};

TEST_F(ToolbarScriptErrors, ReachTheItems)
{
    Run(L"setTimeout(fail)");
    EXPECT_TRUE(PumpUntilTaken());
    EXPECT_THAT(m_window.m_scriptErrors, IsEmpty());
}

TEST_F(ToolbarScriptErrors, OfAFrameReachTheItems)
{
    Run(L"frames[0].setTimeout('fail()')");
    EXPECT_TRUE(PumpUntilTaken());
    EXPECT_THAT(m_window.m_scriptErrors, IsEmpty());
}

TEST_F(ToolbarScriptErrors, ReachTheItemsAfterAReload)
{
    LoadBy([this] { m_spBrowser->Refresh(); });
    Run(L"setTimeout(fail)");
    EXPECT_TRUE(PumpUntilTaken());
    EXPECT_THAT(m_window.m_scriptErrors, IsEmpty());
}

TEST_F(ToolbarScriptErrors, StopThePagesScriptsWhenTheItemSaysSo)
{
    GetItem().bContinuesScripts = false;
    Run(L"onclick = () => document.title = 'Clicked'; setTimeout(fail)");
    ASSERT_TRUE(PumpUntilTaken());
    Settle();
    Click({300, 300});
    EXPECT_EQ(Run(L"document.title"), "Page");
}

TEST_F(ToolbarScriptErrors, LeaveThePagesScriptsRunningWhenTheItemSaysSo)
{
    Run(L"onclick = () => document.title = 'Clicked'; setTimeout(fail)");
    ASSERT_TRUE(PumpUntilTaken());
    Settle();
    Click({300, 300});
    EXPECT_EQ(Run(L"document.title"), "Clicked");
}

TEST_F(ToolbarScriptErrors, GoToTheBoxOfTheBrowserWhenNoItemTakesThem)
{
    GetItem().bTakesScriptErrors = false;
    Run(L"setTimeout(fail)");
    EXPECT_TRUE(PumpUntil([this] { return m_window.m_scriptErrors.size() == 1; }));
    EXPECT_EQ(m_nTaken, 1);
}
