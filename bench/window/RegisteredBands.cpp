#include "bench/window/RegisteredBands.h"

#include "framework/GuidText.h"
#include "framework/Handles.h"

#include <shlguid.h>
#include <shlobj.h>

#include <iterator>
#include <string>

namespace
{
constexpr wchar_t ToolbarKey[] = L"Software\\Microsoft\\Internet Explorer\\Toolbar";

bool HasCategory(REFCLSID clsid, REFGUID category)
{
    const std::wstring key = L"CLSID\\" + GetGuidText(clsid) + L"\\Implemented Categories\\" + GetGuidText(category);
    HKEY hKey = nullptr;
    const LSTATUS nStatus = RegOpenKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, KEY_READ, &hKey);
    const CUniqueRegistryKey owner(hKey);
    return nStatus == ERROR_SUCCESS;
}
} // namespace

std::vector<CLSID> GetRegisteredToolbars()
{
    std::vector<CLSID> toolbars;
    HKEY hKey = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, ToolbarKey, 0, KEY_READ, &hKey) != ERROR_SUCCESS)
        return toolbars;
    const CUniqueRegistryKey key(hKey);
    for (DWORD i = 0;; ++i)
    {
        wchar_t szName[MAX_PATH];
        DWORD dwChars = std::size(szName);
        if (RegEnumValueW(hKey, i, szName, &dwChars, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS)
            return toolbars;
        CLSID clsid;
        if (SUCCEEDED(CLSIDFromString(szName, &clsid)))
            toolbars.push_back(clsid);
    }
}

EBarPlace GetBarPlace(REFCLSID clsid)
{
    if (HasCategory(clsid, CATID_InfoBand))
        return EBarPlace::Left;
    return HasCategory(clsid, CATID_CommBand) ? EBarPlace::Bottom : EBarPlace::None;
}
