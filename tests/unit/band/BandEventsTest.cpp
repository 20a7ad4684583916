// The browser's events as they enter the band.

#include "tests/fakes/BrowserEvent.h"
#include "tests/unit/band/BandFixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace
{
class BandEvents : public CBandTest
{
protected:
    HRESULT SendEvent(CBrowserEvent event) { return event.SendTo(*AskBandFor<IDispatch>().Get()); }
};
} // namespace

TEST_F(BandEvents, RefusesAnEventWithoutArguments)
{
    Connect();
    for (const DISPID dispid : {DISPID_BEFORENAVIGATE2, DISPID_ONQUIT})
        EXPECT_EQ(E_INVALIDARG, AskBandFor<IDispatch>()->Invoke(dispid, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr,
                                                                nullptr, nullptr));
    EXPECT_EQ(1u, m_spBrowser->GetConnectionPoint().GetSinkCount()) << "so the browser's end was not heard";
}

TEST_F(BandEvents, TakesEveryEventInAnyState)
{
    const auto sendAll = [&] {
        for (DISPID dispid = -10; dispid < 300; ++dispid)
        {
            if (dispid != DISPID_ONQUIT)
            {
                EXPECT_EQ(S_OK, SendEvent(CBrowserEvent(dispid))) << dispid;
            }
        }
    };
    sendAll();
    Connect();
    sendAll();
    m_spBand->CloseDW(0);
    sendAll();
}

TEST_F(BandEvents, TakesEventsWithArgumentsOfEveryType)
{
    Connect();
    for (const DISPID dispid : {DISPID_BEFORENAVIGATE2, DISPID_NAVIGATECOMPLETE2, DISPID_DOCUMENTCOMPLETE,
                                DISPID_FILEDOWNLOAD, DISPID_PROPERTYCHANGE, DISPID_STATUSTEXTCHANGE})
        for (VARTYPE vt = VT_EMPTY; vt <= VT_RECORD; ++vt)
            for (const VARTYPE flags : {VARTYPE(0), VARTYPE(VT_BYREF), VARTYPE(VT_ARRAY)})
            {
                VARIANT arguments[8] = {};
                for (VARIANT& argument : arguments)
                    V_VT(&argument) = vt | flags;
                for (const UINT nArguments : {0u, 1u, 2u, 7u, 8u})
                {
                    DISPPARAMS params = {arguments, nullptr, nArguments, 0};
                    EXPECT_EQ(S_OK, AskBandFor<IDispatch>()->Invoke(dispid, IID_NULL, 0, DISPATCH_METHOD, &params,
                                                                    nullptr, nullptr, nullptr));
                }
            }
}

TEST_F(BandEvents, LeavesItsSiteWhenTheBrowserQuits)
{
    Connect();
    CFakeCalls::Get().ClearLog();
    CBrowserEvent event = CBrowserEvent::OnQuit();
    m_spBrowser->Fire(event);
    EXPECT_THAT(GetBrowserCalls(), ElementsAre("WebBrowser.FindConnectionPoint", "ConnectionPoint.Unadvise"));
    EXPECT_EQ(0u, m_spBrowser->GetConnectionPoint().GetSinkCount());
    void* pv = &pv;
    EXPECT_EQ(E_FAIL, AskBandFor<IObjectWithSite>()->GetSite(IID_IUnknown, &pv));
    EXPECT_TRUE(IsWindow(GetBandWindow())) << "the window still stands";
}

TEST_F(BandEvents, IsNotUnadvisedTwiceAfterTheBrowserQuit)
{
    Connect();
    CBrowserEvent event = CBrowserEvent::OnQuit();
    m_spBrowser->Fire(event);
    CFakeCalls::Get().ClearLog();
    EXPECT_EQ(S_OK, GiveSite(nullptr));
    EXPECT_THAT(GetBrowserCalls(), ElementsAre());
}

TEST_F(BandEvents, CanBeQuitBeforeItIsConnected)
{
    EXPECT_EQ(S_OK, SendEvent(CBrowserEvent::OnQuit()));
    EXPECT_THAT(GetBrowserCalls(), ElementsAre());
}
