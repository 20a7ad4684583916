#include "settings/InstallFolder.h"

#include "framework/Handles.h"

#include <windows.h>
#include <gtest/gtest.h>

#include <string>

namespace
{
constexpr wchar_t OwnRoot[] = L"Software\\TrelvixInstallFolderTest";
constexpr wchar_t InstallKey[] = L"Software\\Halmere Works\\Trelvix";

/// In the place of the machine's registry stands an empty key.
class ReadInstallFolderTest : public testing::Test
{
protected:
    ReadInstallFolderTest()
    {
        HKEY hRoot = nullptr;
        RegCreateKeyExW(HKEY_CURRENT_USER, OwnRoot, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &hRoot, nullptr);
        const CUniqueRegistryKey root(hRoot);
        EXPECT_EQ(ERROR_SUCCESS, RegOverridePredefKey(HKEY_LOCAL_MACHINE, root.get()));
    }

    ~ReadInstallFolderTest() override
    {
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
        RegDeleteTreeW(HKEY_CURRENT_USER, OwnRoot);
    }

    static void Record(DWORD dwType, const void* pData, size_t nBytes)
    {
        EXPECT_EQ(ERROR_SUCCESS, RegSetKeyValueW(HKEY_LOCAL_MACHINE, InstallKey, L"Install_Dir", dwType, pData,
                                                 static_cast<DWORD>(nBytes)));
    }
    static void Record(const std::wstring& strFolder)
    {
        Record(REG_SZ, strFolder.c_str(), (strFolder.size() + 1) * sizeof(wchar_t));
    }
};
} // namespace

TEST_F(ReadInstallFolderTest, GivesTheRecordedFolder)
{
    Record(L"C:\\Program Files\\Trelvix");
    EXPECT_EQ(L"C:\\Program Files\\Trelvix", ReadInstallFolder());
}

TEST_F(ReadInstallFolderTest, IsEmptyWithoutARecord)
{
    EXPECT_EQ(L"", ReadInstallFolder());
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, InstallKey, L"Another", REG_SZ, L"x", 4);
    EXPECT_EQ(L"", ReadInstallFolder());
}

TEST_F(ReadInstallFolderTest, IsEmptyForARecordThatIsNoText)
{
    const DWORD dwNumber = 7;
    Record(REG_DWORD, &dwNumber, sizeof(dwNumber));
    EXPECT_EQ(L"", ReadInstallFolder());
}

TEST_F(ReadInstallFolderTest, HasRoomForAPathOfThePlatform)
{
    Record(std::wstring(259, L'x'));
    EXPECT_EQ(std::wstring(259, L'x'), ReadInstallFolder());
    Record(std::wstring(260, L'x'));
    EXPECT_EQ(L"", ReadInstallFolder());
}

TEST_F(ReadInstallFolderTest, TakesATextWithoutATerminatingNull)
{
    Record(REG_SZ, L"C:\\x", 4 * sizeof(wchar_t));
    EXPECT_EQ(L"C:\\x", ReadInstallFolder());
}
