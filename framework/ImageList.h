#pragma once

#include <windows.h>
#include <commctrl.h>

/// Owner of an image list.
class CImageList
{
public:
    HIMAGELIST m_hImageList = nullptr;

    CImageList() = default;
    CImageList(const CImageList&) = delete;
    CImageList& operator=(const CImageList&) = delete;
    ~CImageList();

    /// Replaces the list by a new, empty one of images of `cx` by `cy` pixels. False when the platform refuses.
    bool Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);

    /// Cuts the bitmap into images and adds them; `crMask` becomes transparent. The number of the first, or -1.
    int Add(HBITMAP hBitmap, COLORREF crMask);

    void DeleteImageList();
};
