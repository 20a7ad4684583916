#pragma once

#include "broker/SettingsBroker.h"

#include <windows.h>
#include <wrl/client.h>

/// The broker's verbs for a setting, as the protocol has them; their texts tell nothing of what they do.
inline constexpr wchar_t ReadVerb[] = L"GetMetroStyle";
inline constexpr wchar_t WriteVerb[] = L"GetAppContainer";

/// A new object of the settings broker, started when need be; null when it can't be had.
Microsoft::WRL::ComPtr<ISettingsBroker> CreateSettingsBroker();
