#include "tests/fakes/FakeBandSite.h"

STDMETHODIMP CFakeBandSite::OnFocusChangeIS(IUnknown* pBand, BOOL bFocus)
{
    m_focusChanges.push_back({pBand, bFocus != FALSE});
    return Call("OnFocusChangeIS", [] { return S_OK; });
}

STDMETHODIMP CFakeBandSite::GetWindow(HWND* phWnd)
{
    return Call("GetWindow", phWnd, [&] {
        *phWnd = m_hWnd;
        return S_OK;
    });
}

STDMETHODIMP CFakeBandSite::ContextSensitiveHelp(BOOL)
{
    return Call("ContextSensitiveHelp", [] { return E_NOTIMPL; });
}

STDMETHODIMP CFakeBandSite::QueryService(REFGUID service, REFIID iid, void** ppv)
{
    return Call("QueryService", ppv, [&]() -> HRESULT {
        if (service != IID_IWebBrowserApp || !m_spBrowser)
            return E_NOINTERFACE;
        return m_spBrowser->QueryInterface(iid, ppv);
    });
}
