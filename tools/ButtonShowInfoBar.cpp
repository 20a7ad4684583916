#include "tools/ButtonShowInfoBar.h"

IMPLEMENT_DYNCREATE(CButtonShowInfoBar, CTrelvixButton)

bool CButtonShowInfoBar::Initialize(CTrelvixWindow* pParent)
{
    m_nButtonId = ShowInfoBarIndex;
    CTrelvixButton::Initialize(pParent);
    m_tbButton.fsStyle = BTNS_CHECK | BTNS_DROPDOWN;
    return true;
}
