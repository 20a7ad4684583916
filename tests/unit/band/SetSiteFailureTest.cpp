// Sites and browsers that lack something, and calls of theirs that fail.

#include "framework/Wnd.h"
#include "tests/unit/band/CreationHook.h"
#include "tests/unit/band/SetSiteFixture.h"

#include <windows.h>
#include <commctrl.h>
#include <gmock/gmock.h>
#include <olectl.h>

using testing::ElementsAre;

using FailingSite = CSetSiteTest;

TEST_F(FailingSite, FailsWithoutAWindowOfTheSite)
{
    m_spSite->Lack(IID_IOleWindow);
    EXPECT_EQ(E_FAIL, GiveSite(GetSiteObject()));
    EXPECT_FALSE(HasSite());
    EXPECT_THAT(GetBrowserCalls(), ElementsAre());
}

TEST_F(FailingSite, FailsWhenTheSitesWindowIsNone)
{
    m_spSite->m_hWnd = nullptr;
    EXPECT_EQ(E_FAIL, GiveSite(GetSiteObject()));
    m_spSite->m_hWnd = reinterpret_cast<HWND>(0x7ffe);
    EXPECT_EQ(E_FAIL, GiveSite(GetSiteObject()));
    EXPECT_FALSE(HasSite());
    EXPECT_THAT(GetBrowserCalls(), ElementsAre("BandSite.GetWindow", "BandSite.GetWindow"));
}

TEST_F(FailingSite, ForgetsTheWindowOfTheSiteBefore)
{
    Connect();
    const auto spOther = MakeFake<CFakeBandSite>(m_frame, m_spBrowser.Get());
    spOther->Lack(IID_IOleWindow);
    EXPECT_EQ(E_FAIL, GiveSite(static_cast<IInputObjectSite*>(spOther.Get())));
    EXPECT_EQ(0u, m_spBrowser->GetConnectionPoint().GetSinkCount()) << "the first connection is gone all the same";
}

TEST_F(FailingSite, FailsForASiteThatIsNoInputObjectSite)
{
    m_spSite->Lack(IID_IInputObjectSite);
    EXPECT_EQ(E_FAIL, GiveSite(GetSiteObject()));
    EXPECT_FALSE(HasSite());
}

TEST_F(FailingSite, IsHalfConnectedByASiteWithoutServices)
{
    m_spSite->Lack(IID_IServiceProvider);
    EXPECT_EQ(E_FAIL, GiveSite(GetSiteObject()));
    EXPECT_TRUE(HasSite());
    EXPECT_EQ(nullptr, GetBandWindow());
    EXPECT_EQ(S_OK, GiveSite(nullptr));
    EXPECT_FALSE(HasSite());
}

TEST_F(FailingSite, OfAHalfConnectedBandIsReleasedOnceByItsEnd)
{
    m_spSite->Lack(IID_IServiceProvider);
    const ULONG nBefore = m_spSite->GetReferences();
    EXPECT_EQ(E_FAIL, GiveSite(GetSiteObject()));
    EXPECT_EQ(nBefore + 1, m_spSite->GetReferences());
    m_spBand = CreateBand();
    EXPECT_EQ(nBefore, m_spSite->GetReferences());
}

TEST_F(FailingSite, IsHalfConnectedWhenTheToolbarCannotBeCreated)
{
    for (const wchar_t* pszRefused : {TOOLBARCLASSNAMEW, L"TrelvixWnd"})
    {
        const CCreationHook hook(
            [&](const std::wstring& strClass, const CREATESTRUCTW&) { return strClass != pszRefused; });
        CFakeCalls::Get().ClearLog();
        EXPECT_EQ(E_FAIL, GiveSite(GetSiteObject()));
        EXPECT_TRUE(HasSite());
        EXPECT_FALSE(IsWindow(GetBandWindow()));
        EXPECT_EQ(0u, CWnd::GetAttachedCount());
        EXPECT_EQ(nullptr, GetWindow(m_frame, GW_CHILD));
        EXPECT_THAT(GetBrowserCalls(), ElementsAre("BandSite.GetWindow", "BandSite.QueryService"));
        EXPECT_EQ(S_FALSE, AskBandFor<IInputObject>()->HasFocusIO()) << "there is no window object";
        EXPECT_EQ(S_OK, GiveSite(nullptr));
        EXPECT_FALSE(HasSite());
    }
}

TEST_F(FailingSite, ForgetsTheToolbarOfTheSiteBefore)
{
    Connect();
    const CCreationHook hook([](const std::wstring&, const CREATESTRUCTW&) { return false; });
    EXPECT_EQ(E_FAIL, GiveSite(GetSiteObject()));
    EXPECT_EQ(nullptr, GetBandWindow());
}

TEST_F(FailingSite, PublishesNoWindowThatWasClosedWhileItWasAdvised)
{
    CFakeCalls::Get().ActIn("ConnectionPoint.Advise", [&] { m_spBand->CloseDW(0); });
    EXPECT_EQ(S_OK, GiveSite(GetSiteObject()));
    const _variant_t& vWindow = m_spBrowser->m_properties[L"TRELVIX_HWND"];
    EXPECT_EQ(VT_I4, V_VT(&vWindow));
    EXPECT_EQ(0, V_I4(&vWindow));
}

TEST_F(FailingSite, StandsWithoutABrowser)
{
    CFakeCalls::Get().FailAll("BandSite.QueryService", E_NOINTERFACE);
    EXPECT_EQ(S_OK, GiveSite(GetSiteObject())) << "the service's result is not tested";
    EXPECT_TRUE(IsWindow(GetBandWindow()));
    EXPECT_EQ(0u, m_spBrowser->GetConnectionPoint().GetSinkCount());
    EXPECT_EQ(0u, m_spBrowser->m_properties.size());
}

TEST_F(FailingSite, StandsWithoutEventsWhenTheBrowserCannotBeAdvised)
{
    CFakeCalls::Get().FailAll("ConnectionPoint.Advise", CONNECT_E_CANNOTCONNECT);
    EXPECT_EQ(S_OK, GiveSite(GetSiteObject()));
    EXPECT_TRUE(IsWindow(GetBandWindow()));
    EXPECT_EQ(1u, m_spBrowser->m_properties.count(L"TRELVIX_HWND"));
}

TEST_F(FailingSite, StandsWithoutEventsWhenTheBrowserHasNoConnectionPoints)
{
    m_spBrowser->Lack(IID_IConnectionPointContainer);
    EXPECT_EQ(S_OK, GiveSite(GetSiteObject()));
    EXPECT_TRUE(IsWindow(GetBandWindow()));
}

TEST_F(FailingSite, LeavesNothingBehindWhateverCallFails)
{
    for (const HRESULT hr : {E_FAIL, E_ACCESSDENIED, E_OUTOFMEMORY, RPC_E_DISCONNECTED, S_OK})
        ForEachFailingCall(hr, [&] {
            const HRESULT hrSite = GiveSite(GetSiteObject());
            EXPECT_TRUE(hrSite == S_OK || hrSite == E_FAIL);
            CFakeCalls::Get().StopFailing();
            m_spBand->CloseDW(0);
            EXPECT_EQ(S_OK, GiveSite(nullptr));
            EXPECT_FALSE(HasSite());
            EXPECT_EQ(0u, CWnd::GetAttachedCount());
            EXPECT_EQ(nullptr, GetWindow(m_frame, GW_CHILD));
        });
}
