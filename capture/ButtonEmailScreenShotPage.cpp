#include "capture/ButtonEmailScreenShotPage.h"

IMPLEMENT_DYNCREATE(CButtonEmailScreenShotPage, CTrelvixButton)

bool CButtonEmailScreenShotPage::Initialize(CTrelvixWindow* pParent)
{
    m_nButtonId = EmailScreenShotPageIndex;
    CTrelvixButton::Initialize(pParent);
    m_tbButton.fsStyle = BTNS_AUTOSIZE | BTNS_DROPDOWN;
    return true;
}
