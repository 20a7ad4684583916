#include "controls/XPStyleContext.h"

CXPStyleContext::CXPStyleContext() : m_context(CreateModuleActCtx())
{
    m_bActive = m_context != nullptr && ActivateActCtx(m_context.get(), &m_nCookie);
}

CXPStyleContext::~CXPStyleContext()
{
    if (m_bActive)
        DeactivateActCtx(0, m_nCookie);
}
