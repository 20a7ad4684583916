#pragma once

#include <windows.h>

/// The resource in which a library's manifest stands.
inline constexpr WORD ManifestResource = 2;

/// An activation context of the module's own manifest, to be freed with ReleaseActCtx;
/// INVALID_HANDLE_VALUE and the last error when the platform refuses.
HANDLE CreateModuleActCtx();
