#include "tests/system/ResourceCensus.h"

#include "framework/Handles.h"
#include "tests/fakes/TestWindow.h"

#include <windows.h>
#include <gtest/gtest.h>

#include <memory>

namespace
{
class ResourceCensus : public testing::Test
{
protected:
    ResourceCensus()
    {
        const CUniqueHandle<HDC, DeleteDC> dc(CreateCompatibleDC(nullptr));
        CResourceCensus::Take();
    }

private:
    // The first window and the first device context bring much of the system's own with them.
    CTestWindow m_window;
};
} // namespace

TEST_F(ResourceCensus, StandsStillWhileNothingIsTaken)
{
    const CResourceCensus before = CResourceCensus::Take();
    EXPECT_EQ(before, CResourceCensus::Take());
}

TEST_F(ResourceCensus, SeesAnObjectOfEachKindThatDrawsPictures)
{
    const size_t nBefore = CResourceCensus::Take().nGdiObjects;
    const CUniqueBitmap bitmap(CreateBitmap(1, 1, 1, 1, nullptr));
    const CUniqueHandle<HPEN, DeleteObject> pen(CreatePen(PS_SOLID, 3, RGB(1, 2, 3)));
    const CUniqueHandle<HBRUSH, DeleteObject> brush(CreateSolidBrush(RGB(1, 2, 3)));
    const CUniqueHandle<HFONT, DeleteObject> font(CreateFontW(7, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"Arial"));
    const CUniqueHandle<HRGN, DeleteObject> region(CreateRectRgn(0, 0, 1, 1));
    const CUniqueHandle<HDC, DeleteDC> dc(CreateCompatibleDC(nullptr));
    EXPECT_EQ(nBefore + 6, CResourceCensus::Take().nGdiObjects);
}

TEST_F(ResourceCensus, SeesAKernelHandle)
{
    const size_t nBefore = CResourceCensus::Take().nKernelHandles;
    const CUniqueKernelHandle event(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    EXPECT_EQ(nBefore + 1, CResourceCensus::Take().nKernelHandles);
}

TEST_F(ResourceCensus, SeesWindowsAtTheTopBelowItAndOfMessagesOnly)
{
    const auto create = [](HWND hWndParent, DWORD dwStyle) {
        return CUniqueHandle<HWND, DestroyWindow>(
            CreateWindowExW(0, L"Static", L"", dwStyle, 0, 0, 9, 9, hWndParent, nullptr, nullptr, nullptr));
    };
    const size_t nBefore = CResourceCensus::Take().nWindows;
    const auto top = create(nullptr, WS_POPUP);
    const auto child = create(top.get(), WS_CHILD);
    const auto messageOnly = create(HWND_MESSAGE, 0);
    EXPECT_EQ(nBefore + 3, CResourceCensus::Take().nWindows);
}

TEST_F(ResourceCensus, SeesMemoryThatWasAllocated)
{
    const size_t nBefore = CountHeapBlocks();
    const auto pMemory = std::make_unique<char[]>(100000);
    EXPECT_LT(nBefore, CountHeapBlocks());
}
