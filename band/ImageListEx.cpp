#include "band/ImageListEx.h"

#include "framework/Handles.h"
#include "framework/Module.h"

namespace
{
constexpr COLORREF MaskColor = RGB(255, 255, 255);
}

bool CImageListEx::CreateFromBitmap(UINT nBitmap, int cx)
{
    const CUniqueBitmap bitmap(static_cast<HBITMAP>(
        LoadImageW(AfxGetInstanceHandle(), MAKEINTRESOURCEW(nBitmap), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
    BITMAP description = {};
    if (!bitmap || GetObjectW(bitmap.get(), sizeof description, &description) == 0)
        return false;
    return Create(cx, description.bmHeight, ILC_COLOR24 | ILC_MASK, 0, 1) && Add(bitmap.get(), MaskColor) != -1;
}
