#include "band/ImageListEx.h"

#include <gtest/gtest.h>

namespace
{
constexpr UINT ToolbarBitmap = 201;
constexpr UINT NoBitmap = 4711;
} // namespace

TEST(ImageListEx, CutsTheToolbarsStripIntoSixtyImages)
{
    CImageListEx list;
    ASSERT_TRUE(list.CreateFromBitmap(ToolbarBitmap, 16));
    EXPECT_EQ(60, ImageList_GetImageCount(list.m_hImageList));
    int cx = 0;
    int cy = 0;
    ASSERT_TRUE(ImageList_GetIconSize(list.m_hImageList, &cx, &cy));
    EXPECT_EQ(16, cx);
    EXPECT_EQ(16, cy);
}

TEST(ImageListEx, MakesWhiteTransparent)
{
    CImageListEx list;
    ASSERT_TRUE(list.CreateFromBitmap(ToolbarBitmap, 16));
    IMAGEINFO info = {};
    ASSERT_TRUE(ImageList_GetImageInfo(list.m_hImageList, 0, &info));
    EXPECT_NE(nullptr, info.hbmMask);
}

TEST(ImageListEx, StaysEmptyWithoutTheBitmap)
{
    CImageListEx list;
    EXPECT_FALSE(list.CreateFromBitmap(NoBitmap, 16));
    EXPECT_EQ(nullptr, list.m_hImageList);
}
