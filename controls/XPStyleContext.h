#pragma once

#include "controls/ModuleManifest.h"

#include <windows.h>

/// Brings the module's manifest, resource 2 of its file, into force for as long as the object lives, so that windows of
/// the common controls are created from version 6. Must be destroyed on the thread that made it.
class CXPStyleContext
{
public:
    CXPStyleContext();
    CXPStyleContext(const CXPStyleContext&) = delete;
    CXPStyleContext& operator=(const CXPStyleContext&) = delete;
    ~CXPStyleContext();

    /// False when the platform could not activate the manifest; code in the scope then runs without it.
    bool IsActive() const { return m_bActive; }

private:
    const CUniqueActCtx m_context; ///< empty when it could not be made
    ULONG_PTR m_nCookie = 0;
    bool m_bActive = false;
};
