#include "tools/ButtonColorPicker.h"

IMPLEMENT_DYNCREATE(CButtonColorPicker, CTrelvixButton)

bool CButtonColorPicker::Initialize(CTrelvixWindow* pParent)
{
    m_nButtonId = ColorPickerIndex;
    CTrelvixButton::Initialize(pParent);
    m_tbButton.fsStyle = BTNS_AUTOSIZE | BTNS_DROPDOWN;
    return true;
}
