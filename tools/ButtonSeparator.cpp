#include "tools/ButtonSeparator.h"

#include "band/TrelvixWindow.h"

namespace
{
constexpr int GapWidth = 10;
}

IMPLEMENT_DYNCREATE(CButtonSeparator, CTrelvixButton)

bool CButtonSeparator::Initialize(CTrelvixWindow* pParent)
{
    m_nButtonId = SeparatorIndex;
    m_bHasControl = true;
    if (m_nControlWidth == -1)
        m_nControlWidth = GapWidth;
    CTrelvixButton::Initialize(pParent);
    m_tbButton.fsStyle = BTNS_SEP;
    m_tbButton.iString = 0;
    m_tbButton.dwData = 0;
    return true;
}

const wchar_t* CButtonSeparator::GetLabel()
{
    return L"";
}

bool CButtonSeparator::Place()
{
    // All gaps share one command number, so this one is addressed by its position.
    if (CanPlace())
        SetGapWidth(TBIF_BYINDEX, m_pToolbar->GetButtonCount() - 1);
    return true;
}
