#include "band/BrowserRegistration.h"

#include "framework/Handles.h"

#include <windows.h>

namespace
{
constexpr wchar_t ToolbarKey[] = L"Software\\Microsoft\\Internet Explorer\\Toolbar";
constexpr wchar_t ToolbarValue[] = L"{3E1201F4-1707-409F-BB45-A5F192381DA0}";

CUniqueRegistryKey OpenToolbarKey()
{
    HKEY hKey = nullptr;
    RegCreateKeyExW(HKEY_LOCAL_MACHINE, ToolbarKey, 0, nullptr, 0, KEY_WRITE, nullptr, &hKey, nullptr);
    return CUniqueRegistryKey(hKey);
}
} // namespace

void RegisterWithBrowser()
{
    RegSetValueExW(OpenToolbarKey().get(), ToolbarValue, 0, REG_BINARY, nullptr, 0);
}

void UnregisterFromBrowser()
{
    RegDeleteValueW(OpenToolbarKey().get(), ToolbarValue);
}
