#include "broker/UserSettings.h"

#include <cwchar>
#include <string>

HRESULT ReadUserSetting(const SettingPath& path, BSTR* text)
{
    *text = nullptr;
    std::wstring buffer(MaxSettingBytes / sizeof(wchar_t) + 1, L'\0');
    DWORD size = static_cast<DWORD>(buffer.size() * sizeof(wchar_t));
    const LSTATUS status = RegGetValueW(HKEY_CURRENT_USER, path.key.c_str(), path.value.c_str(), RRF_RT_REG_SZ, nullptr,
                                        buffer.data(), &size);
    if (status == ERROR_FILE_NOT_FOUND)
        return S_OK;
    if (status != ERROR_SUCCESS)
        return HRESULT_FROM_WIN32(status);
    *text = SysAllocString(buffer.c_str());
    return *text != nullptr ? S_OK : E_OUTOFMEMORY;
}

HRESULT WriteUserSetting(const SettingPath& path, const wchar_t* text)
{
    const DWORD size = static_cast<DWORD>((std::wcslen(text) + 1) * sizeof(wchar_t));
    return HRESULT_FROM_WIN32(
        RegSetKeyValueW(HKEY_CURRENT_USER, path.key.c_str(), path.value.c_str(), REG_SZ, text, size));
}
