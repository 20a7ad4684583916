#include "tools/ButtonRootMenu.h"

IMPLEMENT_DYNCREATE(CButtonRootMenu, CTrelvixButton)

bool CButtonRootMenu::Initialize(CTrelvixWindow* pParent)
{
    m_nButtonId = RootMenuIndex;
    CTrelvixButton::Initialize(pParent);
    m_tbButton.fsStyle = BTNS_WHOLEDROPDOWN;
    return true;
}
