#include "framework/ImageList.h"

#include "framework/Handles.h"

#include <gtest/gtest.h>

namespace
{
constexpr COLORREF White = RGB(255, 255, 255);

CUniqueBitmap MakeStrip(int nImages)
{
    const HDC hDC = GetDC(nullptr);
    CUniqueBitmap bitmap(CreateCompatibleBitmap(hDC, nImages * 16, 16));
    ReleaseDC(nullptr, hDC);
    return bitmap;
}
} // namespace

TEST(ImageList, StartsEmptyWithImagesOfTheGivenSize)
{
    CImageList list;
    ASSERT_TRUE(list.Create(16, 20, ILC_COLOR24 | ILC_MASK, 0, 1));
    int cx = 0;
    int cy = 0;
    EXPECT_TRUE(ImageList_GetIconSize(list.m_hImageList, &cx, &cy));
    EXPECT_EQ(16, cx);
    EXPECT_EQ(20, cy);
    EXPECT_EQ(0, ImageList_GetImageCount(list.m_hImageList));
}

TEST(ImageList, CutsAStripIntoItsImages)
{
    CImageList list;
    ASSERT_TRUE(list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 1));
    EXPECT_EQ(0, list.Add(MakeStrip(3).get(), White));
    EXPECT_EQ(3, list.Add(MakeStrip(2).get(), White));
    EXPECT_EQ(5, ImageList_GetImageCount(list.m_hImageList));
}

TEST(ImageList, TakesNothingBeforeItIsCreated)
{
    CImageList list;
    EXPECT_EQ(-1, list.Add(MakeStrip(1).get(), White));
    list.DeleteImageList();
    EXPECT_EQ(nullptr, list.m_hImageList);
}

TEST(ImageList, IsReplacedByASecondCreation)
{
    CImageList list;
    ASSERT_TRUE(list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 1));
    ASSERT_EQ(0, list.Add(MakeStrip(3).get(), White));
    ASSERT_TRUE(list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 1));
    EXPECT_EQ(0, ImageList_GetImageCount(list.m_hImageList));
}

TEST(ImageList, StaysEmptyWhenThePlatformRefuses)
{
    CImageList list;
    EXPECT_FALSE(list.Create(-16, 16, ILC_COLOR24 | ILC_MASK, 0, 1));
    EXPECT_EQ(nullptr, list.m_hImageList);
}

TEST(ImageList, GoesBackToThePlatformWithItsOwner)
{
    HIMAGELIST hImageList = nullptr;
    {
        CImageList list;
        ASSERT_TRUE(list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 1));
        hImageList = list.m_hImageList;
    }
    EXPECT_EQ(0, ImageList_GetImageCount(hImageList));
}
