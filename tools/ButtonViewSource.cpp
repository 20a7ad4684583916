#include "tools/ButtonViewSource.h"

IMPLEMENT_DYNCREATE(CButtonViewSource, CTrelvixButton)

bool CButtonViewSource::Initialize(CTrelvixWindow* pParent)
{
    m_nButtonId = ViewSourceIndex;
    CTrelvixButton::Initialize(pParent);
    m_tbButton.fsStyle = BTNS_AUTOSIZE | BTNS_DROPDOWN;
    return true;
}
