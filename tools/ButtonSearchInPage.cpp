#include "tools/ButtonSearchInPage.h"

IMPLEMENT_DYNCREATE(CButtonSearchInPage, CButtonSearchWeb)

bool CButtonSearchInPage::Initialize(CTrelvixWindow* pParent)
{
    m_nButtonId = SearchInPageIndex;
    return CButtonSearchWeb::Initialize(pParent);
}
