#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Where a setting stands in the user's registry.
struct SettingPath
{
    std::wstring key;   ///< below HKEY_CURRENT_USER
    std::wstring value; ///< empty for the key's default value
};

/// Takes the full key of a setting apart at its last bar; without a bar all of it is the path. Nothing when the path is
/// neither the product's root nor below it, or when the registry could not hold such a path or name.
std::optional<SettingPath> ParseSettingPath(std::wstring_view fullKey);
