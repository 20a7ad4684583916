#pragma once

#include "broker/SettingPath.h"

#include <windows.h>
#include <oleauto.h>

/// The longest text of a setting, in bytes of UTF-16 without the terminating null.
inline constexpr UINT MaxSettingBytes = 64 * 1024;

/// Reads a setting of the user. The text is the caller's to free; null when there is none, and on failure. Fails for
/// values that aren't text or are too long.
HRESULT ReadUserSetting(const SettingPath& path, BSTR* text);

/// Writes a setting of the user, its key made when need be.
HRESULT WriteUserSetting(const SettingPath& path, const wchar_t* text);
