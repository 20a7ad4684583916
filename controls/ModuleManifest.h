#pragma once

#include "framework/Handles.h"

#include <windows.h>

/// The resource in which a library's manifest stands.
inline constexpr WORD ManifestResource = 2;

using CUniqueActCtx = CUniqueHandle<HANDLE, ReleaseActCtx>;

/// An activation context of the module's own manifest; null and the last error when the platform refuses.
CUniqueActCtx CreateModuleActCtx();
