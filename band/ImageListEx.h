#pragma once

#include "framework/ImageList.h"

/// An image list that is cut from a bitmap of the module's resources.
class CImageListEx : public CImageList
{
public:
    /// Replaces the list by the images of the bitmap, each `cx` pixels wide and as high as the bitmap, 24 bits deep
    /// with white transparent. False when the bitmap or the list can't be made.
    bool CreateFromBitmap(UINT nBitmap, int cx);
};
