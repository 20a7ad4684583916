#include "tools/ButtonResizeIEWindow.h"

IMPLEMENT_DYNCREATE(CButtonResizeIEWindow, CTrelvixButton)

bool CButtonResizeIEWindow::Initialize(CTrelvixWindow* pParent)
{
    m_nButtonId = ResizeIEWindowIndex;
    CTrelvixButton::Initialize(pParent);
    m_tbButton.fsStyle = BTNS_AUTOSIZE | BTNS_WHOLEDROPDOWN;
    return true;
}
