#include "settings/SettingKey.h"

std::wstring BuildSettingKey(const std::wstring& root, const std::wstring& section, const std::wstring& name)
{
    std::wstring key = root + L'\\' + section;
    return name.empty() ? key : key + L'|' + name;
}
