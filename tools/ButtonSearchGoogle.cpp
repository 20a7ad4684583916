#include "tools/ButtonSearchGoogle.h"

IMPLEMENT_DYNCREATE(CButtonSearchGoogle, CButtonSearchWeb)

bool CButtonSearchGoogle::Initialize(CTrelvixWindow* pParent)
{
    m_nButtonId = SearchGoogleIndex;
    return CButtonSearchWeb::Initialize(pParent);
}
