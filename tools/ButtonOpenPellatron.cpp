#include "tools/ButtonOpenPellatron.h"

IMPLEMENT_DYNCREATE(CButtonOpenPellatron, CTrelvixButton)

bool CButtonOpenPellatron::Initialize(CTrelvixWindow* pParent)
{
    m_nButtonId = OpenPellatronIndex;
    CTrelvixButton::Initialize(pParent);
    m_tbButton.fsStyle = BTNS_AUTOSIZE | BTNS_WHOLEDROPDOWN;
    return true;
}

bool CButtonOpenPellatron::Place()
{
    return true;
}
