#include "framework/ImageList.h"

#include <utility>

CImageList::~CImageList()
{
    DeleteImageList();
}

bool CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow)
{
    DeleteImageList();
    m_hImageList = ImageList_Create(cx, cy, nFlags, nInitial, nGrow);
    return m_hImageList != nullptr;
}

int CImageList::Add(HBITMAP hBitmap, COLORREF crMask)
{
    return m_hImageList ? ImageList_AddMasked(m_hImageList, hBitmap, crMask) : -1;
}

void CImageList::DeleteImageList()
{
    if (m_hImageList != nullptr)
        ImageList_Destroy(std::exchange(m_hImageList, nullptr));
}
