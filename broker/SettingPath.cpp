#include "broker/SettingPath.h"

#include <algorithm>
#include <cwctype>

namespace
{
constexpr std::wstring_view ServedRoot = L"Software\\Halmere Works\\Trelvix\\v5";

// What the registry takes in one call.
constexpr std::size_t MaxKeyName = 255;
constexpr std::size_t MaxValueName = 16383;
constexpr std::size_t MaxLevels = 32;

bool IsSameLetter(wchar_t left, wchar_t right)
{
    return std::towlower(left) == std::towlower(right);
}

/// As the registry does it, letters are compared without regard to case.
bool IsServed(std::wstring_view path)
{
    return path.size() >= ServedRoot.size() &&
           std::equal(ServedRoot.begin(), ServedRoot.end(), path.begin(), IsSameLetter) &&
           (path.size() == ServedRoot.size() || path[ServedRoot.size()] == L'\\');
}

bool HasSoundLevels(std::wstring_view path)
{
    for (std::size_t levels = 1; levels <= MaxLevels; ++levels)
    {
        const std::wstring_view name = path.substr(0, path.find(L'\\'));
        if (name.empty() || name.size() > MaxKeyName)
            return false;
        if (name.size() == path.size())
            return true;
        path.remove_prefix(name.size() + 1);
    }
    return false;
}
} // namespace

std::optional<SettingPath> ParseSettingPath(std::wstring_view fullKey)
{
    const auto bar = fullKey.rfind(L'|');
    std::wstring_view path = fullKey.substr(0, bar);
    const std::wstring_view value = bar == fullKey.npos ? std::wstring_view() : fullKey.substr(bar + 1);
    if (path.ends_with(L'\\')) // an empty section means the root itself
        path.remove_suffix(1);
    if (fullKey.find(L'\0') != fullKey.npos || !IsServed(path) || !HasSoundLevels(path) || value.size() > MaxValueName)
        return std::nullopt;
    return SettingPath {std::wstring(path), std::wstring(value)};
}
