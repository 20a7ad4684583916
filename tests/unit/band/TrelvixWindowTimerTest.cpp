// The timer that opens the side bar until it was seen once.

#include "tests/unit/band/WindowFixture.h"

namespace
{
constexpr UINT_PTR InfoBarTimer = 2017;
}

using ToolbarTimer = CWindowTest;

TEST_F(ToolbarTimer, OpensTheSideBarOnItsTimer)
{
    ConnectWith({});
    StoreSetting(L"Options", L"InfoBarFirstTime", L"");
    Send(WM_TIMER, InfoBarTimer);
    ASSERT_EQ(1u, m_spBrowser->m_browserBars.size());
    const auto& bar = m_spBrowser->m_browserBars.front();
    EXPECT_EQ(_variant_t(L"{947E34E9-1D85-43CB-9CBF-5C492118FDD5}"), bar.vClsid);
    EXPECT_EQ(_variant_t(true), bar.vShow);
    EXPECT_FALSE(bar.bSize);
}

TEST_F(ToolbarTimer, OpensTheSideBarAtEachTickUntilItWasSeen)
{
    ConnectWith({});
    for (const wchar_t* pszValue : {L"", L"0", L"2", L"no"})
    {
        StoreSetting(L"Options", L"InfoBarFirstTime", pszValue);
        Send(WM_TIMER, InfoBarTimer);
    }
    EXPECT_EQ(4u, m_spBrowser->m_browserBars.size());
    StoreSetting(L"Options", L"InfoBarFirstTime", L"1");
    Send(WM_TIMER, InfoBarTimer);
    EXPECT_EQ(4u, m_spBrowser->m_browserBars.size());
}

TEST_F(ToolbarTimer, LetsItsTimerRunOn)
{
    ConnectWith({});
    constexpr UINT aMinute = 60000;
    ASSERT_NE(0u, SetTimer(GetBandWindow(), InfoBarTimer, aMinute, nullptr));
    Send(WM_TIMER, InfoBarTimer);
    EXPECT_TRUE(KillTimer(GetBandWindow(), InfoBarTimer)) << "it was still there";
}

TEST_F(ToolbarTimer, OpensNothingOnAnotherTimer)
{
    ConnectWith({});
    StoreSetting(L"Options", L"InfoBarFirstTime", L"");
    for (const UINT_PTR nTimer : {UINT_PTR(0), InfoBarTimer - 1, InfoBarTimer + 1})
        Send(WM_TIMER, nTimer);
    EXPECT_EQ(0u, m_spBrowser->m_browserBars.size());
}

TEST_F(ToolbarTimer, OpensNothingWithoutABrowser)
{
    CFakeCalls::Get().FailAll("BandSite.QueryService", E_NOINTERFACE);
    ConnectWith({});
    StoreSetting(L"Options", L"InfoBarFirstTime", L"");
    Send(WM_TIMER, InfoBarTimer);
    EXPECT_EQ(0u, m_spBrowser->m_browserBars.size());
}
