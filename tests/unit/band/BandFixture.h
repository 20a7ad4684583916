#pragma once

#include "tests/fakes/FakeBandSite.h"
#include "tests/fakes/FakeSettingsBroker.h"
#include "tests/fakes/FakeWebBrowser2.h"
#include "tests/fakes/ProductModule.h"
#include "tests/fakes/TestWindow.h"

#include <windows.h>
#include <gtest/gtest.h>
#include <shlobj.h>
#include <wrl/client.h>

#include <string>
#include <vector>

class CTrelvixWindow;

/// A band from the class factory, a fake browser with a site and a window for it, and settings in memory. At the end
/// of each test the band is taken down as a browser does it, and nothing may be left.
class CBandTest : public testing::Test
{
protected:
    CBandTest();
    ~CBandTest() override;
    void TearDown() override;

    /// Gives a setting a value, the empty text for absent.
    static void StoreSetting(const wchar_t* pszSection, const wchar_t* pszName, const std::wstring& strValue);
    static std::wstring ReadSetting(const wchar_t* pszSection, const wchar_t* pszName);
    /// The full key of a setting, as the broker sees it.
    static std::wstring GetSettingKey(const wchar_t* pszSection, const wchar_t* pszName);

    Microsoft::WRL::ComPtr<IDeskBand> CreateBand();

    /// Gives the band a site, and keeps count for the end of the test.
    HRESULT GiveSite(IUnknown* pSite);
    /// Connects the band to the fake browser.
    void Connect() { ASSERT_EQ(S_OK, GiveSite(static_cast<IInputObjectSite*>(m_spSite.Get()))); }

    template <class Interface>
    Microsoft::WRL::ComPtr<Interface> AskBandFor()
    {
        Microsoft::WRL::ComPtr<Interface> spInterface;
        EXPECT_EQ(S_OK, m_spBand.As(&spInterface));
        return spInterface;
    }

    /// The calls that reached browser and site so far, without those of QueryInterface.
    static std::vector<std::string> GetBrowserCalls();

    HWND GetBandWindow();
    /// The window object of the connected band.
    CTrelvixWindow& GetToolbar();
    /// The indices of the items on the toolbar control, by their command numbers.
    std::vector<int> GetItemsOnToolbar();

    CProductModule m_module;
    CFakeSettingsBrokerServer m_broker;
    CTestWindow m_frame;
    Microsoft::WRL::ComPtr<CFakeWebBrowser2> m_spBrowser;
    Microsoft::WRL::ComPtr<CFakeBandSite> m_spSite;
    Microsoft::WRL::ComPtr<IDeskBand> m_spBand;

private:
    int m_nCountedIn = 0;
};
