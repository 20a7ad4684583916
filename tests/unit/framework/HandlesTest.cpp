#include "framework/Handles.h"

#include <windows.h>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace
{
std::vector<HMODULE> g_closed;

void CloseForTest(HMODULE hModule)
{
    g_closed.push_back(hModule);
}

using CWatchedHandle = CUniqueHandle<HMODULE, CloseForTest>;

class Handle : public testing::Test
{
protected:
    void SetUp() override { g_closed.clear(); }

    static HMODULE MakeHandle(UINT_PTR nValue) { return reinterpret_cast<HMODULE>(nValue); }
};
} // namespace

TEST_F(Handle, IsClosedOnceAtTheEndOfItsScope)
{
    {
        CWatchedHandle handle(MakeHandle(0x10));
        const CWatchedHandle moved = std::move(handle);
    }
    EXPECT_EQ(std::vector {MakeHandle(0x10)}, g_closed);
}

TEST_F(Handle, IsClosedWhenAnotherTakesItsPlace)
{
    CWatchedHandle handle(MakeHandle(0x10));
    handle.reset(MakeHandle(0x20));
    EXPECT_EQ(std::vector {MakeHandle(0x10)}, g_closed);
}

TEST_F(Handle, IsNotClosedWhenItIsNull)
{
    {
        const CWatchedHandle handle;
    }
    EXPECT_TRUE(g_closed.empty());
}

TEST_F(Handle, GoesBackToThePlatform)
{
    HANDLE hEvent = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    ASSERT_NE(nullptr, hEvent);
    CUniqueKernelHandle(hEvent).reset();
    EXPECT_EQ(WAIT_FAILED, WaitForSingleObject(hEvent, 0));
}

TEST_F(Handle, OfABitmapGoesBackToThePlatform)
{
    const HBITMAP hBitmap = CreateBitmap(4, 4, 1, 1, nullptr);
    ASSERT_EQ(static_cast<DWORD>(OBJ_BITMAP), GetObjectType(hBitmap));
    CUniqueBitmap(hBitmap).reset();
    EXPECT_EQ(0u, GetObjectType(hBitmap));
}
