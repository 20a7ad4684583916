#include "controls/XPStyleContext.h"

#include "controls/ModuleManifest.h"

CXPStyleContext::CXPStyleContext() : m_hContext(CreateModuleActCtx())
{
    m_bActive = m_hContext != INVALID_HANDLE_VALUE && ActivateActCtx(m_hContext, &m_nCookie);
}

CXPStyleContext::~CXPStyleContext()
{
    if (m_bActive)
        DeactivateActCtx(0, m_nCookie);
    if (m_hContext != INVALID_HANDLE_VALUE)
        ReleaseActCtx(m_hContext);
}
