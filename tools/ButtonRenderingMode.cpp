#include "tools/ButtonRenderingMode.h"

IMPLEMENT_DYNCREATE(CButtonRenderingMode, CTrelvixButton)

bool CButtonRenderingMode::Initialize(CTrelvixWindow* pParent)
{
    m_nButtonId = RenderingModeIndex;
    CTrelvixButton::Initialize(pParent);
    m_tbButton.fsStyle = BTNS_AUTOSIZE | BTNS_WHOLEDROPDOWN;
    return true;
}
