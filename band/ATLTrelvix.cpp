#include "band/ATLTrelvix.h"

#include "band/BandService.h"
#include "band/TrelvixWindow.h"
#include "controls/XPStyleContext.h"
#include "framework/ComBoundary.h"
#include "framework/ComQuery.h"

#include <windows.h>
#include <comutil.h>
#include <exdispid.h>

#include <new>

using Microsoft::WRL::ComPtr;

namespace
{
/// Browser property with the handle of the toolbar window, for other components in the same browser.
constexpr wchar_t ToolbarWindowProperty[] = L"TRELVIX_HWND";

constexpr DWORD ToolbarStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_TABSTOP | TBSTYLE_TRANSPARENT |
                               TBSTYLE_LIST | TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | CCS_NODIVIDER | CCS_NOPARENTALIGN |
                               CCS_NORESIZE | CCS_NOMOVEY | CCS_TOP;
static_assert(ToolbarStyle == 0x5401994F);
} // namespace

CATLTrelvix::CATLTrelvix() = default;

CATLTrelvix::~CATLTrelvix()
{
    ReleaseToolbarWindow();
}

STDMETHODIMP CATLTrelvix::SetSite(IUnknown* pUnkSite)
{
    return ComBoundary([&] {
        if (pUnkSite != nullptr)
            CountBandIn();
        else
            CountBandOut();
        if (m_pSite)
        {
            UnadviseBrowserEvents();
            m_pSite.Reset();
        }
        return pUnkSite ? Connect(pUnkSite) : S_OK;
    });
}

HRESULT CATLTrelvix::Connect(IUnknown* pUnkSite)
{
    if (!FindParentWindow(pUnkSite))
        return E_FAIL;
    m_pSite = QueryFor<IInputObjectSite>(pUnkSite);
    const auto spServices = m_pSite ? QueryFor<IServiceProvider>(pUnkSite) : nullptr;
    if (spServices == nullptr)
        return E_FAIL;
    // Not tested, and meant so: a band is only ever sited in a browser.
    spServices->QueryService(IID_IWebBrowserApp, IID_PPV_ARGS(&m_pWebBrowser));
    if (!CreateToolbarWindow())
        return E_FAIL;
    AdviseBrowserEvents();
    // The browser may have closed the band while it was advised.
    if (m_pToolbarWindow)
        m_pToolbarWindow->SetBand(this);
    PublishToolbarWindow();
    return S_OK;
}

bool CATLTrelvix::FindParentWindow(IUnknown* pUnkSite)
{
    m_hWndParent = nullptr;
    if (const auto spWindow = QueryFor<IOleWindow>(pUnkSite))
        spWindow->GetWindow(&m_hWndParent);
    return IsWindow(m_hWndParent);
}

bool CATLTrelvix::CreateToolbarWindow()
{
    RECT rect = {};
    GetClientRect(m_hWndParent, &rect);
    const CXPStyleContext style;
    ReleaseToolbarWindow();
    m_hWnd = nullptr;
    m_pToolbarWindow.reset(new (std::nothrow) CTrelvixWindow);
    if (m_pToolbarWindow == nullptr)
        return false;
    m_pToolbarWindow->SetWebBrowser(m_pWebBrowser.Get());
    if (!m_pToolbarWindow->Create(ToolbarStyle, rect, m_hWndParent, ToolbarControlId))
    {
        ReleaseToolbarWindow();
        return false;
    }
    m_hWnd = m_pToolbarWindow->m_hWnd;
    return IsWindow(m_hWnd);
}

void CATLTrelvix::ReleaseToolbarWindow()
{
    // A call that is under way in the window may keep it beyond this band.
    if (m_pToolbarWindow)
        m_pToolbarWindow->SetBand(nullptr);
    m_pToolbarWindow.reset();
}

ComPtr<IConnectionPoint> CATLTrelvix::FindEventPoint() const
{
    ComPtr<IConnectionPoint> spPoint;
    if (const auto spContainer = QueryFor<IConnectionPointContainer>(m_pWebBrowser.Get()))
        spContainer->FindConnectionPoint(DIID_DWebBrowserEvents2, &spPoint);
    return spPoint;
}

void CATLTrelvix::AdviseBrowserEvents()
{
    // A band that can't be advised still shows a working toolbar, which is not told about page loads.
    if (const ComPtr<IConnectionPoint> spPoint = FindEventPoint())
        spPoint->Advise(static_cast<IDispatch*>(this), &m_dwEventCookie);
}

void CATLTrelvix::UnadviseBrowserEvents()
{
    if (const ComPtr<IConnectionPoint> spPoint = FindEventPoint())
        spPoint->Unadvise(m_dwEventCookie);
    m_dwEventCookie = 0;
}

void CATLTrelvix::PublishToolbarWindow()
{
    if (m_pWebBrowser == nullptr)
        return;
    const HWND hWnd = m_pToolbarWindow ? m_pToolbarWindow->m_hWnd : nullptr;
    const _variant_t window(static_cast<long>(reinterpret_cast<LONG_PTR>(hWnd)));
    m_pWebBrowser->PutProperty(_bstr_t(ToolbarWindowProperty), window);
}

STDMETHODIMP CATLTrelvix::GetSite(REFIID riid, void** ppvSite)
{
    if (ppvSite == nullptr)
        return E_POINTER;
    *ppvSite = nullptr;
    return m_pSite ? m_pSite->QueryInterface(riid, ppvSite) : E_FAIL;
}

STDMETHODIMP CATLTrelvix::Invoke(DISPID dispid, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS* pDispParams,
                                 VARIANT* pVarResult, EXCEPINFO* pExcepInfo, UINT* puArgErr)
{
    if (pDispParams == nullptr)
        return E_INVALIDARG;
    ComBoundary([&] {
        if (m_pToolbarWindow)
            m_pToolbarWindow->Invoke(dispid, riid, lcid, wFlags, pDispParams, pVarResult, pExcepInfo, puArgErr);
        return S_OK;
    });
    if (dispid == DISPID_ONQUIT)
    {
        UnadviseBrowserEvents();
        m_pSite.Reset();
    }
    return S_OK;
}

void CATLTrelvix::NotifyFocusChange(bool bFocus)
{
    if (m_pSite == nullptr)
        return;
    ComPtr<IUnknown> spUnknown;
    static_cast<IATLTrelvix*>(this)->QueryInterface(IID_PPV_ARGS(&spUnknown));
    m_pSite->OnFocusChangeIS(spUnknown.Get(), bFocus);
}
