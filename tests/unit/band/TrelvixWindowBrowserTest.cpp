// What the toolbar asks of the browser: navigations and the side bar.

#include "band/InfoBarHelper.h"
#include "tests/unit/band/ToolbarBrowserFixture.h"

#include <gmock/gmock.h>

using Microsoft::WRL::ComPtr;
using testing::ElementsAre;

using ToolbarBrowser = CToolbarBrowserTest;

TEST_F(ToolbarBrowser, IsSentToAnAddress)
{
    Connect();
    EXPECT_TRUE(GetToolbar().NavigateTo(L"http://page.test/", false));
    ASSERT_THAT(GetFlags(), ElementsAre(0));
    EXPECT_EQ(L"http://page.test/", m_spBrowser->m_navigations.front().strUrl);
}

TEST_F(ToolbarBrowser, CountsAsSentWhenItsOwnNavigationFails)
{
    Connect();
    CFakeCalls::Get().FailAll("WebBrowser.Navigate", E_FAIL);
    EXPECT_TRUE(GetToolbar().NavigateTo(L"http://page.test/", false));
    EXPECT_THAT(GetFlags(), ElementsAre(0));
}

TEST_F(ToolbarBrowser, IsSentNowhereWhenThereIsNone)
{
    ConnectWithoutBrowser();
    EXPECT_FALSE(GetToolbar().NavigateTo(L"http://page.test/", false));
    EXPECT_FALSE(GetToolbar().NavigateTo(nullptr, true));
    EXPECT_FALSE(GetToolbar().IsInfoBarOpen());
}

TEST_F(ToolbarBrowser, IsSentANullAddressAsItStands)
{
    Connect();
    EXPECT_TRUE(GetToolbar().NavigateTo(nullptr, false));
    ASSERT_EQ(1u, m_spBrowser->m_navigations.size());
    EXPECT_EQ(L"", m_spBrowser->m_navigations.front().strUrl);
}

namespace
{
/// The side bar's helper object.
class CFakeInfoBarHelper final : public IInfoBarHelper
{
public:
    STDMETHODIMP IsOpen(BYTE* pbOpen) override
    {
        *pbOpen = m_bOpen;
        return m_hr;
    }

    BYTE m_bOpen = 1;
    HRESULT m_hr = S_OK;
};

class InfoBar : public ToolbarBrowser
{
protected:
    void SetUp() override
    {
        Connect();
        Publish(&m_helper);
    }

    void Publish(IInfoBarHelper* pHelper)
    {
        VARIANT vHelper = {};
        V_VT(&vHelper) = VT_I8;
        V_I8(&vHelper) = reinterpret_cast<LONGLONG>(pHelper);
        m_spBrowser->m_properties[InfoBarHelperProperty] = vHelper;
    }

    /// Publishes the side bar itself, with a window.
    ComPtr<CFakeBandSite> PublishBar(HWND hWnd)
    {
        auto spBar = MakeFake<CFakeBandSite>(hWnd, nullptr);
        m_spBrowser->m_properties[InfoBarClass] = static_cast<IOleWindow*>(spBar.Get());
        return spBar;
    }

    void ExpectNoRect()
    {
        RECT rect = {1, 2, 3, 4};
        EXPECT_FALSE(GetToolbar().GetInfoBarRect(&rect));
        EXPECT_TRUE(IsRectEmpty(&rect));
    }

    void TearDown() override
    {
        m_spBrowser->m_properties.clear();
        ToolbarBrowser::TearDown();
    }

    CFakeInfoBarHelper m_helper;
};
} // namespace

TEST_F(InfoBar, IsOpenWhenItsHelperSaysSo)
{
    EXPECT_STREQ(L"3455D989-81AF-4942-8D70-5AF74B63B37F", InfoBarHelperProperty);
    EXPECT_TRUE(GetToolbar().IsInfoBarOpen());
    m_helper.m_bOpen = 0;
    EXPECT_FALSE(GetToolbar().IsInfoBarOpen());
    m_helper.m_bOpen = 0xFF;
    EXPECT_TRUE(GetToolbar().IsInfoBarOpen());
}

TEST_F(InfoBar, IsNotOpenWhenItsHelperFails)
{
    m_helper.m_hr = E_FAIL;
    EXPECT_FALSE(GetToolbar().IsInfoBarOpen());
}

TEST_F(InfoBar, IsNotOpenWithoutAHelper)
{
    Publish(nullptr);
    EXPECT_FALSE(GetToolbar().IsInfoBarOpen());
    m_spBrowser->m_properties.clear();
    EXPECT_FALSE(GetToolbar().IsInfoBarOpen());
}

TEST_F(InfoBar, IsNotOpenForAPropertyOfAnotherType)
{
    for (const VARTYPE vt : {VT_EMPTY, VT_I4, VT_UI8, VT_BOOL, VT_R8})
    {
        V_VT(&m_spBrowser->m_properties[InfoBarHelperProperty]) = vt;
        EXPECT_FALSE(GetToolbar().IsInfoBarOpen()) << vt;
    }
}

TEST_F(InfoBar, IsNotOpenWhenTheBrowserFails)
{
    CFakeCalls::Get().FailAll("WebBrowser.GetProperty", E_FAIL);
    EXPECT_FALSE(GetToolbar().IsInfoBarOpen());
    ExpectNoRect();
}

TEST_F(InfoBar, StandsWhereItsWindowStands)
{
    ShowWindow(m_frame, SW_SHOWNA);
    const auto spBar = PublishBar(m_frame);
    RECT expected = {};
    GetWindowRect(m_frame, &expected);
    RECT rect = {};
    EXPECT_TRUE(GetToolbar().GetInfoBarRect(&rect));
    EXPECT_TRUE(EqualRect(&expected, &rect));
}

TEST_F(InfoBar, StandsNowhereWhileItIsHidden)
{
    const auto spBar = PublishBar(m_frame);
    ShowWindow(m_frame, SW_HIDE);
    ExpectNoRect();
}

TEST_F(InfoBar, StandsNowhereWithoutAWindow)
{
    const auto spBar = PublishBar(nullptr);
    ExpectNoRect();
    CFakeCalls::Get().FailAll("BandSite.GetWindow", E_FAIL);
    ExpectNoRect();
    spBar->Lack(IID_IOleWindow);
    ExpectNoRect();
}

TEST_F(InfoBar, StandsNowhereWhenItIsNotPublished)
{
    ExpectNoRect();
    m_spBrowser->m_properties[InfoBarClass] = _variant_t(3L);
    ExpectNoRect();
    m_spBrowser->m_properties[InfoBarClass] = static_cast<IUnknown*>(nullptr);
    ExpectNoRect();
}

TEST_F(InfoBar, StandsNowhereForAWindowWithoutABand)
{
    ShowWindow(m_frame, SW_SHOWNA);
    const auto spBar = PublishBar(m_frame);
    CTrelvixWindow window;
    window.SetWebBrowser(m_spBrowser.Get());
    RECT rect = {1, 2, 3, 4};
    EXPECT_FALSE(window.GetInfoBarRect(&rect));
    EXPECT_TRUE(IsRectEmpty(&rect));
}
