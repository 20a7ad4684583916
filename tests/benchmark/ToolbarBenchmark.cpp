#include "band/TrelvixWindow.h"
#include "resources/Trelvix.h"
#include "tests/benchmark/Benchmark.h"
#include "tests/benchmark/PlainToolbar.h"
#include "tests/fakes/FakeBandSite.h"
#include "tests/fakes/FakeCalls.h"
#include "tests/fakes/FakeSettingsBroker.h"
#include "tests/fakes/FakeWebBrowser2.h"
#include "tests/fakes/ProductModule.h"
#include "tests/fakes/TestWindow.h"

#include <ocidl.h>
#include <shlobj.h>

using Microsoft::WRL::ComPtr;

namespace
{
constexpr DWORD ToolbarStyle = 0x5401994F;

/// Connects the first band of the process to a browser, and takes it down again.
double TimeOfFirstSetSite(HWND hWndParent)
{
    ComPtr<IDeskBand> spBand;
    CoCreateInstance(CLSID_ATLTrelvix, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&spBand));
    ComPtr<IObjectWithSite> spWithSite;
    spBand.As(&spWithSite);
    const auto spSite = MakeFake<CFakeBandSite>(hWndParent, MakeFake<CFakeWebBrowser2>().Get());
    const double nMicroseconds = TimeOf([&] { spWithSite->SetSite(static_cast<IInputObjectSite*>(spSite.Get())); });
    spBand->CloseDW(0);
    spWithSite->SetSite(nullptr);
    PumpMessages();
    CFakeCalls::Get().Reset();
    return nMicroseconds;
}

double TimeOfPlainCreation(HWND hWndParent)
{
    CPlainToolbar toolbar;
    const double nMicroseconds = TimeOf([&] { toolbar.Create(hWndParent); });
    PumpMessages();
    return nMicroseconds;
}

void MeasureToolbar(CBenchmark& benchmark)
{
    const CProductModule module;
    const CFakeSettingsBrokerServer broker;
    const CTestWindow frame;
    benchmark.Compare(
        "first SetSite", {.mostRatio = 1.5}, [&] { return TimeOfFirstSetSite(frame); },
        [&] { return TimeOfPlainCreation(frame); });

    RECT rect = {};
    GetClientRect(frame, &rect);
    CTrelvixWindow toolbar;
    toolbar.Create(ToolbarStyle, rect, frame, ToolbarControlId);
    CPlainToolbar plainToolbar;
    plainToolbar.Create(frame);
    benchmark.Compare(
        "LoadLayout of the default layout", {.mostRatio = 1.2}, [&] { return TimeOf([&] { toolbar.LoadLayout(); }); },
        [&] { return TimeOf([&] { plainToolbar.Load(); }); });
}

const CSubject s_subject("toolbar", MeasureToolbar);
} // namespace
