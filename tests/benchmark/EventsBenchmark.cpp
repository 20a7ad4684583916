#include "resources/Trelvix.h"
#include "settings/SettingsStore.h"
#include "tests/benchmark/Benchmark.h"
#include "tests/fakes/BrowserEvent.h"
#include "tests/fakes/FakeBandSite.h"
#include "tests/fakes/FakeClientSite.h"
#include "tests/fakes/FakePage.h"
#include "tests/fakes/FakeSettingsBroker.h"
#include "tests/fakes/ProductModule.h"
#include "tests/fakes/TestWindow.h"

#include <shlobj.h>

using Microsoft::WRL::ComPtr;

namespace
{
constexpr int EventsPerSample = 1000;
constexpr int FrameCount = 20;
constexpr wchar_t AllItems[] = L"0001000100010002000100030001000400010005000100060001000700010008"
                               L"000100090001000A0001000B0001000C0001000D";

/// What an event costs before anything is done with it.
class CIdleSink : public CFakeObject<CIdleSink, IDispatch>
{
    BEGIN_COM_MAP(CIdleSink)
        COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()

public:
    CIdleSink() : CFakeObject("IdleSink") {}

    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override { return S_OK; }
};

/// A band with all items on its toolbar, in a browser that shows a page with frames.
class CBandInBrowser
{
public:
    CBandInBrowser()
    {
        CSettingsStore(SettingsRoot).WriteString(AllItems, L"Toolbar", L"Layout");
        CFakePage::GetDocument(m_page.GetTop()).m_spClientSite = MakeFake<CFakeClientSite>();
        for (int n = 0; n < FrameCount; ++n)
            m_page.AddFrame(m_page.GetTop(), L"http://page.test/frame");
        CoCreateInstance(CLSID_ATLTrelvix, nullptr, CLSCTX_ALL, IID_PPV_ARGS(&m_spBand));
        m_spBand.As(&m_spDispatch);
        SetSite(static_cast<IInputObjectSite*>(MakeFake<CFakeBandSite>(m_frame, &m_page.GetTop()).Get()));
    }

    ~CBandInBrowser()
    {
        m_spBand->CloseDW(0);
        SetSite(nullptr);
        CFakePage::GetDocument(m_page.GetTop()).m_spUIHandler.Reset();
        CSettingsStore(SettingsRoot).WriteString({}, L"Toolbar", L"Layout");
    }

    IDispatch& GetSink() { return *m_spDispatch.Get(); }
    CFakePage& GetPage() { return m_page; }

private:
    void SetSite(IUnknown* pSite)
    {
        ComPtr<IObjectWithSite> spObject;
        m_spBand.As(&spObject);
        spObject->SetSite(pSite);
    }

    CProductModule m_module;
    CFakeSettingsBrokerServer m_broker;
    CTestWindow m_frame;
    CFakePage m_page;
    ComPtr<IDeskBand> m_spBand;
    ComPtr<IDispatch> m_spDispatch;
};

double TimeOfEvent(IDispatch& sink)
{
    CBrowserEvent event = CBrowserEvent::StatusTextChange(L"Done");
    return TimeOfEach(EventsPerSample, [&] { event.SendTo(sink); });
}

double TimeOfLoad(CFakePage& page, IDispatch& sink)
{
    CFakeCalls::Get().ClearLog();
    return TimeOf([&] { page.Load([&](CBrowserEvent& event) { event.SendTo(sink); }); });
}

void MeasureEvents(CBenchmark& benchmark)
{
    CBandInBrowser band;
    const auto spIdleSink = MakeFake<CIdleSink>();
    benchmark.Compare(
        "one event, all items", {.mostMicroseconds = 20}, [&] { return TimeOfEvent(band.GetSink()); },
        [&] { return TimeOfEvent(*spIdleSink.Get()); });
    benchmark.Compare(
        "load of a page with 20 frames", {.mostMicroseconds = 2000},
        [&] { return TimeOfLoad(band.GetPage(), band.GetSink()); },
        [&] { return TimeOfLoad(band.GetPage(), *spIdleSink.Get()); });
}

const CSubject s_subject("events", MeasureEvents);
} // namespace
