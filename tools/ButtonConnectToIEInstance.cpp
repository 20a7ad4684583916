#include "tools/ButtonConnectToIEInstance.h"

IMPLEMENT_DYNCREATE(CButtonConnectToIEInstance, CTrelvixButton)

bool CButtonConnectToIEInstance::Initialize(CTrelvixWindow* pParent)
{
    m_nButtonId = ConnectToIEInstanceIndex;
    return CTrelvixButton::Initialize(pParent);
}
