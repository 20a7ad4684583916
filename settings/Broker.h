#pragma once

#include "broker/SettingsBroker.h"

#include <windows.h>
#include <wrl/client.h>

/// A new object of the settings broker, started when need be; null when it can't be had.
Microsoft::WRL::ComPtr<ISettingsBroker> CreateSettingsBroker();
