#include "resources/resource.h"

#include <windows.h>
#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <memory>
#include <set>
#include <span>
#include <vector>

namespace
{
constexpr int StripWidth = 975;
constexpr int PictureSize = 16;
constexpr int PictureCount = StripWidth / PictureSize;

struct Pixel
{
    BYTE blue, green, red;

    bool operator==(const Pixel&) const = default;
    auto operator<=>(const Pixel&) const = default;
};

constexpr Pixel Mask = {0xFF, 0xFF, 0xFF};

using Picture = std::array<Pixel, PictureSize * PictureSize>;

/// The strip of pictures as it lies in the module.
class ToolbarPictures : public testing::Test
{
protected:
    std::unique_ptr<void, decltype(&DeleteObject)> m_bitmap {
        LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDB_TOOLBAR), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION),
        DeleteObject};
    BITMAP m_description = {};

    void SetUp() override
    {
        ASSERT_TRUE(m_bitmap);
        ASSERT_NE(GetObjectW(m_bitmap.get(), sizeof m_description, &m_description), 0);
        ASSERT_EQ(m_description.bmWidth, StripWidth);
        ASSERT_EQ(m_description.bmHeight, PictureSize);
        ASSERT_EQ(m_description.bmBitsPixel, 24);
    }

    Picture PictureAt(int index) const
    {
        Picture picture;
        for (int row = 0; row < PictureSize; ++row)
            std::ranges::copy(RowOf(row).subspan(index * PictureSize, PictureSize), &picture[row * PictureSize]);
        return picture;
    }

private:
    std::span<const Pixel> RowOf(int row) const
    {
        const auto* bits = static_cast<const BYTE*>(m_description.bmBits) + row * m_description.bmWidthBytes;
        return {reinterpret_cast<const Pixel*>(bits), StripWidth};
    }
};

/// Fourteen pictures have the numbers of the items; the others are those that items switch to.
std::vector<int> UsedPictures()
{
    return {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 50, 51, 52, 53, 54, 55, 56, 57};
}

auto VisiblePixels(const Picture& picture)
{
    return std::ranges::count_if(picture, [](const Pixel& pixel) { return pixel != Mask; });
}

bool IsAlmostWhite(const Pixel& pixel)
{
    return pixel != Mask && std::min({pixel.red, pixel.green, pixel.blue}) > 0xE0;
}

/// Whether a light pixel touches the mask at its left or right, as a soft edge drawn on white would.
bool HasLightEdge(const Picture& picture)
{
    for (int position = 0; position + 1 < static_cast<int>(picture.size()); ++position)
    {
        const Pixel& left = picture[position];
        const Pixel& right = picture[position + 1];
        const bool isSameRow = position / PictureSize == (position + 1) / PictureSize;
        if (isSameRow && ((left == Mask && IsAlmostWhite(right)) || (IsAlmostWhite(left) && right == Mask)))
            return true;
    }
    return false;
}
} // namespace

TEST_F(ToolbarPictures, AreThereForEachItemAndEachState)
{
    for (const int index : UsedPictures())
        EXPECT_GT(VisiblePixels(PictureAt(index)), 40) << "picture " << index;
}

TEST_F(ToolbarPictures, AreNotThereForAnythingElse)
{
    const std::vector<int> used = UsedPictures();
    for (int index = 0; index < PictureCount; ++index)
        EXPECT_EQ(VisiblePixels(PictureAt(index)) > 0, std::ranges::count(used, index) > 0) << "picture " << index;
}

TEST_F(ToolbarPictures, DifferFromEachOther)
{
    std::set<Picture> pictures;
    for (const int index : UsedPictures())
        EXPECT_TRUE(pictures.insert(PictureAt(index)).second) << "picture " << index;
}

TEST_F(ToolbarPictures, HaveNoLightFringe)
{
    for (int index = 0; index < PictureCount; ++index)
        EXPECT_FALSE(HasLightEdge(PictureAt(index))) << "picture " << index;
}
