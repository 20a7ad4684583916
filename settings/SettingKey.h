#pragma once

#include <string>

/// The full key of a setting, by which the cache and the broker know it: "root\section|name". An empty section still
/// has its backslash; an empty name has no bar. Case is kept.
std::wstring BuildSettingKey(const std::wstring& root, const std::wstring& section, const std::wstring& name);
