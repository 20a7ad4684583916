#include "bench/window/BandSite.h"

#include <shlguid.h>

STDMETHODIMP CBandSite::OnFocusChangeIS(IUnknown*, BOOL bFocus)
{
    if (m_pHost)
        m_pHost->OnBandFocusChange(bFocus != FALSE);
    return S_OK;
}

STDMETHODIMP CBandSite::GetWindow(HWND* phWnd)
{
    if (phWnd == nullptr)
        return E_POINTER;
    *phWnd = m_pHost ? m_hWnd : nullptr;
    return *phWnd ? S_OK : E_FAIL;
}

STDMETHODIMP CBandSite::ContextSensitiveHelp(BOOL)
{
    return E_NOTIMPL;
}

STDMETHODIMP CBandSite::QueryService(REFGUID service, REFIID iid, void** ppv)
{
    return m_spServices->QueryService(service, iid, ppv);
}

STDMETHODIMP CBandSite::QueryStatus(const GUID*, ULONG, OLECMD*, OLECMDTEXT*)
{
    return OLECMDERR_E_UNKNOWNGROUP;
}

STDMETHODIMP CBandSite::Exec(const GUID* pGroup, DWORD nCommand, DWORD, VARIANT*, VARIANT*)
{
    if (pGroup == nullptr || *pGroup != CGID_DeskBand)
        return OLECMDERR_E_UNKNOWNGROUP;
    if (nCommand != DBID_BANDINFOCHANGED)
        return OLECMDERR_E_NOTSUPPORTED;
    if (m_pHost)
        m_pHost->OnBandInfoChanged();
    return S_OK;
}
