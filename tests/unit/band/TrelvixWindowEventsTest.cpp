// The browser's events on their way to the items.

#include "tests/fakes/BrowserEvent.h"
#include "tests/unit/band/WindowFixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
class ToolbarEvents : public CWindowTest
{
protected:
    void Fire(CBrowserEvent event) { m_spBrowser->Fire(event); }
};
} // namespace

TEST_F(ToolbarEvents, ReachEachItemOfTheLayoutInItsOrder)
{
    ConnectWith({6, 2});
    Fire(CBrowserEvent::StatusTextChange(L"ready"));
    EXPECT_THAT(GetItems().TakeCalls(),
                ElementsAre("0 OnBrowserEvent 102", "6 OnBrowserEvent 102", "2 OnBrowserEvent 102"));
}

TEST_F(ToolbarEvents, ReachAnItemTwiceThatIsListedTwice)
{
    ConnectWith({6, 2, 6});
    Fire(CBrowserEvent::StatusTextChange(L"ready"));
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("0 OnBrowserEvent 102", "6 OnBrowserEvent 102",
                                                    "2 OnBrowserEvent 102", "6 OnBrowserEvent 102"));
}

TEST_F(ToolbarEvents, ReachTheSeparatorOncePerAppearance)
{
    ConnectWith({1, 6, 1});
    Fire(CBrowserEvent::StatusTextChange(L"ready"));
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("0 OnBrowserEvent 102", "1 OnBrowserEvent 102",
                                                    "6 OnBrowserEvent 102", "1 OnBrowserEvent 102"));
}

TEST_F(ToolbarEvents, ReachTheItemsWithAllTheirArguments)
{
    ConnectWith({6});
    DISPPARAMS params = {};
    VARIANT vResult = {};
    EXCEPINFO exception = {};
    UINT nArgument = 0;
    AskBandFor<IDispatch>()->Invoke(7, IID_IStream, 0x409, DISPATCH_PROPERTYPUT, &params, &vResult, &exception,
                                    &nArgument);
    const CRawEvent& event = GetItems().m_lastEvent;
    EXPECT_EQ(7, event.dispid);
    EXPECT_EQ(IID_IStream, event.iid);
    EXPECT_EQ(0x409u, event.lcid);
    EXPECT_EQ(DISPATCH_PROPERTYPUT, event.wFlags);
    EXPECT_EQ(&params, event.pDispParams);
    EXPECT_EQ(&vResult, event.pVarResult);
    EXPECT_EQ(&exception, event.pExcepInfo);
    EXPECT_EQ(&nArgument, event.puArgErr);
}

TEST_F(ToolbarEvents, ReachTheItemsAfterTheNotificationThatTheyCause)
{
    ConnectWith({6});
    Fire(CBrowserEvent::BeforeNavigate2(m_spBrowser->AsFrame(), L"http://page.test/"));
    EXPECT_THAT(GetItems().TakeCalls(),
                ElementsAre("0 OnPageLoadBegin http://page.test/", "6 OnPageLoadBegin http://page.test/",
                            "0 OnBrowserEvent 250", "6 OnBrowserEvent 250"));
    Fire(CBrowserEvent::DocumentComplete(m_spBrowser->AsFrame(), L"http://page.test/"));
    EXPECT_THAT(GetItems().TakeCalls(),
                ElementsAre("0 OnPageLoadComplete http://page.test/", "6 OnPageLoadComplete http://page.test/",
                            "0 OnBrowserEvent 259", "6 OnBrowserEvent 259"));
}

TEST_F(ToolbarEvents, StillReachTheItemsWhenTheBrowserQuits)
{
    ConnectWith({6});
    Fire(CBrowserEvent::OnQuit());
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("0 OnBrowserEvent 253", "6 OnBrowserEvent 253"));
}

TEST_F(ToolbarEvents, ReachNoItemWithoutArguments)
{
    ConnectWith({6});
    AskBandFor<IDispatch>()->Invoke(DISPID_STATUSTEXTCHANGE, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr,
                                    nullptr);
    GetToolbar().Invoke(DISPID_STATUSTEXTCHANGE, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr);
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
}

TEST_F(ToolbarEvents, ReachTheItemsWithoutABrowser)
{
    CFakeCalls::Get().FailAll("BandSite.QueryService", E_NOINTERFACE);
    ConnectWith({6});
    CBrowserEvent::DownloadBegin().SendTo(*AskBandFor<IDispatch>().Get());
    EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("0 OnBrowserEvent 106", "6 OnBrowserEvent 106"));
}

TEST_F(ToolbarEvents, AreFannedOutAsNotificationsToEachItemOfTheLayout)
{
    ConnectWith({6, 6});
    ITVXEvents& events = GetToolbar();
    IDispatch* const pFrame = m_spBrowser->AsFrame();
    const auto expect = [](const std::string& strCall) {
        EXPECT_THAT(GetItems().TakeCalls(), ElementsAre("0 " + strCall, "6 " + strCall, "6 " + strCall));
    };
    events.OnPageLoadBegin(pFrame, L"u");
    expect("OnPageLoadBegin u");
    events.OnPageLoadComplete(pFrame, L"u");
    expect("OnPageLoadComplete u");
    events.OnFrameLoadBegin(pFrame, L"u", L"1.2.");
    expect("OnFrameLoadBegin u 1.2.");
    events.OnFrameLoadComplete(pFrame, L"u");
    expect("OnFrameLoadComplete u");
    events.OnPageRefreshBegin(pFrame, L"u");
    expect("OnPageRefreshBegin u");
    events.OnPageRefreshComplete();
    expect("OnPageRefreshComplete");
    events.OnFrameRefreshBegin(pFrame, L"u", L"1.2.");
    expect("OnFrameRefreshBegin u 1.2.");
    events.OnFrameRefreshComplete();
    expect("OnFrameRefreshComplete");
}

TEST_F(ToolbarEvents, HaveOneNotificationThatGoesNowhere)
{
    ConnectWith({6});
    static_cast<ITVXEvents&>(GetToolbar()).OnSpareEvent();
    EXPECT_THAT(GetItems().TakeCalls(), IsEmpty());
}
