#include "capture/ButtonScriptErrorAlert.h"

IMPLEMENT_DYNCREATE(CButtonScriptErrorAlert, CTrelvixButton)

bool CButtonScriptErrorAlert::Initialize(CTrelvixWindow* pParent)
{
    m_nButtonId = ScriptErrorAlertIndex;
    return CTrelvixButton::Initialize(pParent);
}
