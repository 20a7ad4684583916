// The life of the registered band, over and over: nothing may be left of the system's resources.

#include "framework/Handles.h"
#include "resources/Trelvix.h"
#include "tests/fakes/FakeBandSite.h"
#include "tests/fakes/FakeCalls.h"
#include "tests/fakes/FakeWebBrowser2.h"
#include "tests/fakes/LivingFakes.h"
#include "tests/fakes/TestWindow.h"
#include "tests/system/BuiltFile.h"
#include "tests/system/ResourceCensus.h"

#include <windows.h>
#include <gtest/gtest.h>
#include <shlobj.h>
#include <wrl/client.h>

#include <string>

using Microsoft::WRL::ComPtr;

namespace
{
constexpr int nCycles = 1000;
constexpr int nTabs = 100;
constexpr int nLoads = 200;
/// Until the platform's own caches are filled.
constexpr int nWarmUpRounds = 10;

/// Keeps the common controls of the sixth version loaded, as a browser does, which has them in its own manifest.
CUniqueModule LoadCommonControls()
{
    const std::wstring strLibrary = GetShippedFile(L"Trelvix.x64.dll").wstring();
    ACTCTXW request = {};
    request.cbSize = sizeof request;
    request.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID;
    request.lpSource = strLibrary.c_str();
    request.lpResourceName = MAKEINTRESOURCEW(2);
    const CUniqueHandle<HANDLE, ReleaseActCtx> context(CreateActCtxW(&request));
    ULONG_PTR nCookie = 0;
    ActivateActCtx(context.get(), &nCookie);
    CUniqueModule library(LoadLibraryW(L"comctl32.dll"));
    DeactivateActCtx(0, nCookie);
    return library;
}

class BandCycle : public testing::Test
{
protected:
    BandCycle() { OleInitialize(nullptr); }
    ~BandCycle() override { OleUninitialize(); }

    static ComPtr<IDeskBand> CreateBand()
    {
        ComPtr<IDeskBand> spBand;
        EXPECT_EQ(S_OK, CoCreateInstance(CLSID_ATLTrelvix, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&spBand)));
        return spBand;
    }

    /// As a browser does it that shows a tab and closes it.
    void Show(IDeskBand* pBand)
    {
        {
            const ComPtr<CFakeBandSite> spSite = MakeFake<CFakeBandSite>(m_window, MakeFake<CFakeWebBrowser2>().Get());
            ComPtr<IObjectWithSite> spWithSite;
            ASSERT_EQ(S_OK, pBand->QueryInterface(IID_PPV_ARGS(&spWithSite)));
            ASSERT_EQ(S_OK, spWithSite->SetSite(static_cast<IInputObjectSite*>(spSite.Get())));
            pBand->ShowDW(TRUE);
            PumpMessages();
            pBand->ShowDW(FALSE);
            pBand->CloseDW(0);
            EXPECT_EQ(S_OK, spWithSite->SetSite(nullptr));
        }
        PumpMessages();
        CFakeCalls::Get().Reset();
    }

    static bool IsLibraryLoaded() { return GetModuleHandleW(L"Trelvix.x64.dll") != nullptr; }

    CTestWindow m_window;
};
} // namespace

TEST_F(BandCycle, LeavesNothingAfterAThousandConnectionsOfOneBand)
{
    ComPtr<IDeskBand> spBand = CreateBand();
    for (int n = 0; n < nWarmUpRounds; ++n)
        Show(spBand.Get());
    const CResourceCensus before = CResourceCensus::Take();
    const size_t nBlocksBefore = CountHeapBlocks();
    for (int n = 0; n < nCycles; ++n)
        Show(spBand.Get());
    EXPECT_EQ(before, CResourceCensus::Take());
    EXPECT_LT(CountHeapBlocks(), nBlocksBefore + nCycles / 10);
    spBand.Reset(); // holds its last browser
    EXPECT_EQ("", CLivingFakes::Get().TakeAll());
}

TEST_F(BandCycle, LeavesNothingAfterAHundredTabs)
{
    for (int n = 0; n < nWarmUpRounds; ++n)
        Show(CreateBand().Get());
    const CResourceCensus before = CResourceCensus::Take();
    const size_t nBlocksBefore = CountHeapBlocks();
    for (int n = 0; n < nTabs; ++n)
        Show(CreateBand().Get());
    EXPECT_EQ(before, CResourceCensus::Take());
    EXPECT_LT(CountHeapBlocks(), nBlocksBefore + nTabs / 10);
    EXPECT_EQ("", CLivingFakes::Get().TakeAll());
}

TEST_F(BandCycle, LeavesNothingAfterTheLibraryWasLoadedAndUnloadedTwoHundredTimes)
{
    const CUniqueModule commonControls = LoadCommonControls();
    const auto load = [&] {
        Show(CreateBand().Get());
        ASSERT_TRUE(IsLibraryLoaded());
        CoFreeUnusedLibrariesEx(0, 0);
        ASSERT_FALSE(IsLibraryLoaded());
    };
    for (int n = 0; n < nWarmUpRounds; ++n)
        load();
    const CResourceCensus before = CResourceCensus::Take();
    for (int n = 0; n < nLoads; ++n)
        load();
    EXPECT_EQ(before, CResourceCensus::Take());
}
