#include "tests/unit/band/BandFixture.h"

#include "band/BandService.h"
#include "band/TrelvixWindow.h"
#include "resources/Trelvix.h"
#include "settings/SettingKey.h"
#include "settings/SettingsStore.h"

using Microsoft::WRL::ComPtr;

CBandTest::CBandTest()
    : m_spBrowser(MakeFake<CFakeWebBrowser2>()), m_spSite(MakeFake<CFakeBandSite>(m_frame, m_spBrowser.Get()))
{
    StoreSetting(L"Toolbar", L"Layout", L"");
    StoreSetting(L"Options", L"langID", L"");
    StoreSetting(L"Options", L"ToolbarFirstTime", L"1");
    StoreSetting(L"Options", L"InfoBarFirstTime", L"1");
    m_broker->m_reads.clear();
    m_broker->m_writes.clear();
    m_spBand = CreateBand();
    CFakeCalls::Get().ClearLog();
}

CBandTest::~CBandTest() = default;

void CBandTest::TearDown()
{
    CFakeCalls::Get().Reset();
    m_spBand->CloseDW(0);
    GiveSite(nullptr);
    m_spBand.Reset();
    for (; m_nCountedIn > 0; --m_nCountedIn)
        CountBandOut();
    for (; m_nCountedIn < 0; ++m_nCountedIn)
        CountBandIn();
    m_module.RevokeClasses();
    EXPECT_EQ(0, m_module.GetObjectCount()) << "objects are left";
    EXPECT_EQ(0u, CWnd::GetAttachedCount()) << "windows are left";
    EXPECT_EQ(nullptr, GetWindow(m_frame, GW_CHILD)) << "a window is left in the browser's";
    EXPECT_EQ(0u, m_spBrowser->GetConnectionPoint().GetSinkCount());
}

void CBandTest::StoreSetting(const wchar_t* pszSection, const wchar_t* pszName, const std::wstring& strValue)
{
    CSettingsStore(SettingsRoot).WriteString(strValue, pszSection, pszName);
}

std::wstring CBandTest::ReadSetting(const wchar_t* pszSection, const wchar_t* pszName)
{
    return CSettingsStore(SettingsRoot).ReadString(pszSection, pszName);
}

std::wstring CBandTest::GetSettingKey(const wchar_t* pszSection, const wchar_t* pszName)
{
    return BuildSettingKey(SettingsRoot, pszSection, pszName);
}

ComPtr<IDeskBand> CBandTest::CreateBand()
{
    ComPtr<IDeskBand> spBand;
    EXPECT_EQ(S_OK, CoCreateInstance(CLSID_ATLTrelvix, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&spBand)));
    return spBand;
}

HRESULT CBandTest::GiveSite(IUnknown* pSite)
{
    m_nCountedIn += pSite != nullptr ? 1 : -1;
    return AskBandFor<IObjectWithSite>()->SetSite(pSite);
}

std::vector<std::string> CBandTest::GetBrowserCalls()
{
    std::vector<std::string> calls = CFakeCalls::Get().GetNames();
    std::erase_if(calls, [](const std::string& strName) { return strName.starts_with("SettingsBroker."); });
    return calls;
}

HWND CBandTest::GetBandWindow()
{
    HWND hWnd = nullptr;
    EXPECT_EQ(S_OK, m_spBand->GetWindow(&hWnd));
    return hWnd;
}

CTrelvixWindow& CBandTest::GetToolbar()
{
    return static_cast<CTrelvixWindow&>(*CWnd::FromHandlePermanent(GetBandWindow()));
}

std::vector<int> CBandTest::GetItemsOnToolbar()
{
    std::vector<int> items;
    const HWND hWnd = GetBandWindow();
    for (int n = 0; n < SendMessageW(hWnd, TB_BUTTONCOUNT, 0, 0); ++n)
    {
        TBBUTTON button = {};
        EXPECT_TRUE(SendMessageW(hWnd, TB_GETBUTTON, n, reinterpret_cast<LPARAM>(&button)));
        items.push_back(button.idCommand - FirstButtonCommand);
    }
    return items;
}
