#include "tools/ButtonSearchWeb.h"

namespace
{
constexpr int BoxWidth = 200;
}

IMPLEMENT_DYNCREATE(CButtonSearchWeb, CTrelvixButton)

bool CButtonSearchWeb::Initialize(CTrelvixWindow* pParent)
{
    m_bHasControl = true;
    m_bFocusable = true;
    if (m_nControlWidth == -1)
        m_nControlWidth = BoxWidth;
    CTrelvixButton::Initialize(pParent);
    m_tbButton.fsStyle = BTNS_SEP;
    return true;
}
