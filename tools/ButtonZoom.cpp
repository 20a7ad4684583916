#include "tools/ButtonZoom.h"

namespace
{
constexpr int ZoomBoxWidth = 60;
}

IMPLEMENT_DYNCREATE(CButtonZoom, CButtonSearchWeb)

bool CButtonZoom::Initialize(CTrelvixWindow* pParent)
{
    m_nButtonId = ZoomIndex;
    CButtonSearchWeb::Initialize(pParent);
    m_nControlWidth = ZoomBoxWidth;
    return true;
}
