// What the first band of the process starts and the last one stops.

#include "band/BandService.h"

#include "framework/Handles.h"
#include "settings/LanguagePack.h"
#include "tests/unit/band/BandFixture.h"

#include <filesystem>
#include <fstream>

namespace
{
constexpr WORD French = 0x0C;

/// A name that no other process uses at the same time.
std::wstring GetOwnName()
{
    return L"TrelvixBandServiceTest" + std::to_wstring(GetCurrentProcessId());
}

/// Stands an empty tree in the place of the machine's part of the registry, for this process.
class CMachineRegistry
{
public:
    CMachineRegistry()
    {
        m_key = CreateKey(HKEY_CURRENT_USER, m_strPath.c_str());
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, m_key.get());
    }
    CMachineRegistry(const CMachineRegistry&) = delete;
    CMachineRegistry& operator=(const CMachineRegistry&) = delete;
    ~CMachineRegistry()
    {
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
        m_key.reset();
        RegDeleteTreeW(HKEY_CURRENT_USER, m_strPath.c_str());
    }

    void Set(const wchar_t* pszKey, const wchar_t* pszName, const std::wstring& strValue) const
    {
        const CUniqueRegistryKey key = CreateKey(m_key.get(), pszKey);
        RegSetValueExW(key.get(), pszName, 0, REG_SZ, reinterpret_cast<const BYTE*>(strValue.c_str()),
                       static_cast<DWORD>((strValue.size() + 1) * sizeof(wchar_t)));
    }

private:
    static CUniqueRegistryKey CreateKey(HKEY hParent, const wchar_t* pszKey)
    {
        HKEY hKey = nullptr;
        RegCreateKeyExW(hParent, pszKey, 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS, nullptr, &hKey, nullptr);
        return CUniqueRegistryKey(hKey);
    }

    const std::wstring m_strPath = L"Software\\" + GetOwnName();
    CUniqueRegistryKey m_key;
};

/// An installation folder with one language pack, removed with the object.
class CInstallation
{
public:
    CInstallation() : m_path(std::filesystem::temp_directory_path() / GetOwnName())
    {
        std::filesystem::create_directories(m_path / L"Languages");
        std::ofstream pack(m_path / L"Languages" / L"FRENCH.lang", std::ios::binary);
        const std::wstring strText = L"\xFEFF"
                                     L"1000:Barre Trelvix\r\n";
        pack.write(reinterpret_cast<const char*>(strText.data()), strText.size() * sizeof(wchar_t));
    }
    CInstallation(const CInstallation&) = delete;
    CInstallation& operator=(const CInstallation&) = delete;
    ~CInstallation() { std::filesystem::remove_all(m_path); }

    std::wstring GetFolder() const { return m_path.wstring(); }

private:
    std::filesystem::path m_path;
};

class BandService : public CBandTest
{
protected:
    static std::wstring LoadLabel()
    {
        std::wstring strLabel;
        LoadTranslatedString(strLabel, 1000);
        return strLabel;
    }

    static WORD GetUsersLanguage() { return PRIMARYLANGID(GetUserDefaultLangID()); }

    void Install() { m_registry.Set(L"Software\\Halmere Works\\Trelvix", L"Install_Dir", m_installation.GetFolder()); }

    const CMachineRegistry m_registry;
    const CInstallation m_installation;
};
} // namespace

TEST_F(BandService, LoadsTheChosenLanguageFromTheInstallationFolder)
{
    Install();
    StoreSetting(L"Options", L"langID", L"12");
    Connect();
    EXPECT_EQ(French, GetRequestedLanguage());
    EXPECT_EQ(L"Barre Trelvix", LoadLabel());
}

TEST_F(BandService, TakesTheLow16BitsOfTheLanguage)
{
    StoreSetting(L"Options", L"langID", std::to_wstring(0x50000 + French));
    Connect();
    EXPECT_EQ(French, GetRequestedLanguage());
}

TEST_F(BandService, TakesTheUsersLanguageWhenNoneIsChosen)
{
    for (const wchar_t* pszNone : {L"", L"-1", L"65535", L"0"})
    {
        StoreSetting(L"Options", L"langID", pszNone);
        CountBandIn();
        EXPECT_EQ(GetUsersLanguage(), GetRequestedLanguage()) << "chosen: \"" << pszNone << '"';
        CountBandOut();
    }
}

TEST_F(BandService, GoesOnWithoutAnInstallationFolder)
{
    StoreSetting(L"Options", L"langID", L"12");
    Connect();
    EXPECT_EQ(French, GetRequestedLanguage());
    EXPECT_EQ(L"Trelvix", LoadLabel());
}

TEST_F(BandService, ReleasesTheTextsWithTheLastBand)
{
    Install();
    StoreSetting(L"Options", L"langID", L"12");
    CountBandIn();
    CountBandIn();
    CountBandOut();
    EXPECT_EQ(L"Barre Trelvix", LoadLabel()) << "one band is left";
    CountBandOut();
    EXPECT_EQ(L"Trelvix", LoadLabel());
}

TEST_F(BandService, StartsAnewAfterTheLastBand)
{
    Install();
    CountBandIn();
    EXPECT_EQ(L"Trelvix", LoadLabel());
    CountBandOut();
    StoreSetting(L"Options", L"langID", L"12");
    CountBandIn();
    EXPECT_EQ(L"Barre Trelvix", LoadLabel());
    CountBandOut();
}

TEST_F(BandService, CountsEveryCallOfSetSite)
{
    Install();
    StoreSetting(L"Options", L"langID", L"12");
    Connect();
    Connect();
    EXPECT_EQ(S_OK, GiveSite(nullptr));
    EXPECT_EQ(L"Barre Trelvix", LoadLabel()) << "counted in twice, out once";
    EXPECT_EQ(S_OK, GiveSite(nullptr));
    EXPECT_EQ(L"Trelvix", LoadLabel());
}

TEST_F(BandService, CountsABandThatFailedToConnect)
{
    Install();
    StoreSetting(L"Options", L"langID", L"12");
    m_spSite->Lack(IID_IOleWindow);
    EXPECT_EQ(E_FAIL, GiveSite(static_cast<IInputObjectSite*>(m_spSite.Get())));
    EXPECT_EQ(L"Barre Trelvix", LoadLabel());
    EXPECT_EQ(S_OK, GiveSite(nullptr));
    EXPECT_EQ(L"Trelvix", LoadLabel());
}

TEST_F(BandService, ShowsTheChosenLanguageOnTheToolbar)
{
    Install();
    StoreSetting(L"Options", L"langID", L"12");
    Connect();
    TBBUTTON button = {};
    SendMessageW(GetBandWindow(), TB_GETBUTTON, 0, reinterpret_cast<LPARAM>(&button));
    wchar_t szText[64] = {};
    SendMessageW(GetBandWindow(), TB_GETSTRINGW, MAKEWPARAM(ARRAYSIZE(szText), button.iString),
                 reinterpret_cast<LPARAM>(szText));
    EXPECT_STREQ(L"Barre Trelvix", szText);
}
