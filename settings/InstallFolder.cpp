#include "settings/InstallFolder.h"

#include "framework/Handles.h"

namespace
{
constexpr wchar_t InstallKey[] = L"Software\\Halmere Works\\Trelvix";
constexpr wchar_t InstallValue[] = L"Install_Dir";
constexpr DWORD MaxFolder = 260;

CUniqueRegistryKey OpenInstallKey()
{
    HKEY hKey = nullptr;
    RegOpenKeyExW(HKEY_LOCAL_MACHINE, InstallKey, 0, KEY_QUERY_VALUE, &hKey);
    return CUniqueRegistryKey(hKey);
}
} // namespace

std::wstring ReadInstallFolder()
{
    const CUniqueRegistryKey key = OpenInstallKey();
    wchar_t szFolder[MaxFolder] = {};
    DWORD nBytes = sizeof(szFolder);
    if (!key ||
        RegGetValueW(key.get(), nullptr, InstallValue, RRF_RT_REG_SZ, nullptr, szFolder, &nBytes) != ERROR_SUCCESS)
        return {};
    return szFolder;
}
