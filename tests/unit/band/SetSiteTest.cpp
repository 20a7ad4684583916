// Connecting the band to a browser and taking it off again.

#include "band/ATLTrelvix.h"
#include "band/TrelvixWindow.h"
#include "tests/unit/band/CreationHook.h"
#include "tests/unit/band/SetSiteFixture.h"
#include "tests/unit/controls/ActivationContext.h"

#include <gmock/gmock.h>

using Microsoft::WRL::ComPtr;
using testing::ElementsAre;

using SetSite = CSetSiteTest;
using GetSite = CSetSiteTest;

TEST_F(SetSite, ConnectsStepByStep)
{
    Connect();
    EXPECT_THAT(GetBrowserCalls(),
                ElementsAre("BandSite.GetWindow", "BandSite.QueryService", "WebBrowser.FindConnectionPoint",
                            "ConnectionPoint.Advise", "WebBrowser.PutProperty"));
}

TEST_F(SetSite, CreatesTheWindowBetweenTheBrowserAndItsEvents)
{
    CFakeCalls::Get().ActIn("BandSite.QueryService", [&] { EXPECT_EQ(nullptr, GetBandWindow()); });
    CFakeCalls::Get().ActIn("WebBrowser.FindConnectionPoint", [&] {
        ASSERT_TRUE(IsWindow(GetBandWindow()));
        EXPECT_EQ(nullptr, GetToolbar().GetBand());
    });
    CFakeCalls::Get().ActIn("WebBrowser.PutProperty", [&] { EXPECT_NE(nullptr, GetToolbar().GetBand()); });
    Connect();
}

TEST_F(SetSite, MakesTheToolbarAChildOfTheSitesWindow)
{
    Connect();
    const HWND hWnd = GetBandWindow();
    ASSERT_TRUE(IsWindow(hWnd));
    EXPECT_EQ(m_frame, GetParent(hWnd));
    EXPECT_EQ(103, GetDlgCtrlID(hWnd));
    wchar_t szClass[32] = {};
    GetClassNameW(hWnd, szClass, ARRAYSIZE(szClass));
    EXPECT_STREQ(TOOLBARCLASSNAMEW, szClass);
}

TEST_F(SetSite, GivesTheToolbarItsStyle)
{
    LONG lStyle = 0;
    const CCreationHook hook([&](const std::wstring& strClass, const CREATESTRUCTW& creation) {
        if (strClass == TOOLBARCLASSNAMEW)
            lStyle = creation.style;
        return true;
    });
    Connect();
    EXPECT_EQ(0x5401994F, lStyle);
}

TEST_F(SetSite, CreatesTheToolbarUnderTheLibrarysManifest)
{
    bool bRedirected = false;
    const CCreationHook hook([&](const std::wstring& strClass, const CREATESTRUCTW&) {
        bRedirected |= strClass == TOOLBARCLASSNAMEW && AreCommonControlsRedirected();
        return true;
    });
    Connect();
    EXPECT_TRUE(bRedirected);
    EXPECT_FALSE(AreCommonControlsRedirected()) << "it is out of force again";
}

TEST_F(SetSite, FillsTheSitesWindowWithTheToolbar)
{
    RECT frame = {};
    GetClientRect(m_frame, &frame);
    Connect();
    RECT toolbar = {};
    GetWindowRect(GetBandWindow(), &toolbar);
    EXPECT_EQ(frame.right, toolbar.right - toolbar.left);
    EXPECT_EQ(frame.bottom, toolbar.bottom - toolbar.top);
}

TEST_F(SetSite, PublishesTheToolbarsWindow)
{
    Connect();
    const _variant_t& vWindow = m_spBrowser->m_properties[L"TRELVIX_HWND"];
    EXPECT_EQ(VT_I4, V_VT(&vWindow));
    EXPECT_EQ(static_cast<LONG>(reinterpret_cast<LONG_PTR>(GetBandWindow())), V_I4(&vWindow));
}

TEST_F(SetSite, AdvisesTheBandsOwnDispatch)
{
    Connect();
    const auto sinks = m_spBrowser->GetConnectionPoint().GetSinks();
    ASSERT_EQ(1u, sinks.size());
    EXPECT_EQ(AskBandFor<IDispatch>().Get(), sinks.front().Get());
}

TEST_F(SetSite, GivesTheWindowTheBrowserAndTheBand)
{
    Connect();
    EXPECT_EQ(m_spBrowser.Get(), GetToolbar().GetWebBrowser());
    ASSERT_NE(nullptr, GetToolbar().GetBand());
    EXPECT_EQ(m_spBrowser.Get(), GetToolbar().GetBand()->GetWebBrowser());
}

TEST_F(SetSite, KeepsTheSiteUntilItIsTakenAway)
{
    const ULONG nBefore = m_spSite->GetReferences();
    Connect();
    EXPECT_EQ(nBefore + 1, m_spSite->GetReferences());
    EXPECT_EQ(S_OK, GiveSite(nullptr));
    EXPECT_EQ(nBefore, m_spSite->GetReferences());
}

TEST_F(SetSite, WithNullUnadvisesAndLeavesTheWindowToCloseDW)
{
    Connect();
    CFakeCalls::Get().ClearLog();
    EXPECT_EQ(S_OK, GiveSite(nullptr));
    EXPECT_THAT(GetBrowserCalls(), ElementsAre("WebBrowser.FindConnectionPoint", "ConnectionPoint.Unadvise"));
    EXPECT_EQ(0u, m_spBrowser->GetConnectionPoint().GetSinkCount());
    EXPECT_TRUE(IsWindow(GetBandWindow()));
}

TEST_F(SetSite, WithNullOnABandThatWasNeverConnectedTouchesNothing)
{
    EXPECT_EQ(S_OK, GiveSite(nullptr));
    EXPECT_THAT(GetBrowserCalls(), ElementsAre());
    EXPECT_EQ(nullptr, GetBandWindow());
    EXPECT_EQ(S_OK, GiveSite(GetSiteObject())) << "the count is balanced again";
}

TEST_F(SetSite, WithASecondSiteDisconnectsTheFirstBeforeItConnects)
{
    Connect();
    const HWND hFirst = GetBandWindow();
    CFakeCalls::Get().ClearLog();
    const auto spOther = MakeFake<CFakeBandSite>(m_frame, m_spBrowser.Get());
    EXPECT_EQ(S_OK, GiveSite(static_cast<IInputObjectSite*>(spOther.Get())));
    EXPECT_THAT(GetBrowserCalls(),
                ElementsAre("WebBrowser.FindConnectionPoint", "ConnectionPoint.Unadvise", "BandSite.GetWindow",
                            "BandSite.QueryService", "WebBrowser.FindConnectionPoint", "ConnectionPoint.Advise",
                            "WebBrowser.PutProperty"));
    EXPECT_EQ(1u, m_spBrowser->GetConnectionPoint().GetSinkCount());
    EXPECT_FALSE(IsWindow(hFirst)) << "the first toolbar doesn't stay behind";
    EXPECT_TRUE(IsWindow(GetBandWindow()));
}

TEST_F(SetSite, TakesABandThatWasClosed)
{
    Connect();
    m_spBand->CloseDW(0);
    EXPECT_EQ(S_OK, GiveSite(nullptr));
    Connect();
    EXPECT_TRUE(IsWindow(GetBandWindow()));
}

TEST_F(SetSite, ConnectsAnyNumberOfBandsToTheirBrowsers)
{
    Connect();
    const ComPtr<IDeskBand> spFirst = m_spBand;
    const HWND hFirst = GetBandWindow();
    m_spBand = CreateBand();
    Connect();
    EXPECT_NE(hFirst, GetBandWindow());
    EXPECT_EQ(2u, m_spBrowser->GetConnectionPoint().GetSinkCount());
    m_spBand->CloseDW(0);
    GiveSite(nullptr);
    m_spBand = spFirst;
    EXPECT_TRUE(IsWindow(hFirst));
}

TEST_F(GetSite, FailsAndClearsTheOutPointerWithoutASite)
{
    void* pv = &pv;
    EXPECT_EQ(E_FAIL, AskBandFor<IObjectWithSite>()->GetSite(IID_IUnknown, &pv));
    EXPECT_EQ(nullptr, pv);
}

TEST_F(GetSite, AsksTheSiteForTheInterface)
{
    Connect();
    ComPtr<IServiceProvider> spServices;
    EXPECT_EQ(S_OK, AskBandFor<IObjectWithSite>()->GetSite(IID_PPV_ARGS(&spServices)));
    EXPECT_EQ(static_cast<IServiceProvider*>(m_spSite.Get()), spServices.Get());
}

TEST_F(GetSite, AnswersAsTheSiteDoesForWhatItLacks)
{
    Connect();
    void* pv = &pv;
    EXPECT_EQ(E_NOINTERFACE, AskBandFor<IObjectWithSite>()->GetSite(IID_IStream, &pv));
    EXPECT_EQ(nullptr, pv);
}

TEST_F(GetSite, RefusesToAnswerNowhere)
{
    Connect();
    EXPECT_EQ(E_POINTER, AskBandFor<IObjectWithSite>()->GetSite(IID_IUnknown, nullptr));
}
