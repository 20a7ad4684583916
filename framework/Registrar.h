#pragma once

#include <windows.h>

/// Runs the registration script in the module's "REGISTRY" resource through the platform's registrar, with %MODULE%
/// replaced by the module's full path. COM must be initialised on the thread.
HRESULT RunRegistryScript(UINT nResource, bool bRegister);
