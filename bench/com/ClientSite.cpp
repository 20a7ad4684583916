#include "bench/com/ClientSite.h"

#include "bench/com/BrowserWindow.h"
#include "bench/com/EventObject.h"
#include "bench/com/Variants.h"
#include "bench/com/WebBrowser.h"
#include "framework/ComBoundary.h"
#include "framework/ComQuery.h"

using Microsoft::WRL::ComPtr;

namespace
{
/// The event object of the document that a command reports a script error of; null for anything else.
ComPtr<IHTMLEventObj> GetErrorEvent(const VARIANT* pvDocument)
{
    ComPtr<IHTMLWindow2> spWindow;
    ComPtr<IHTMLEventObj> spEvent;
    const auto spDocument =
        pvDocument && V_VT(pvDocument) == VT_UNKNOWN ? QueryFor<IHTMLDocument2>(V_UNKNOWN(pvDocument)) : nullptr;
    if (spDocument && SUCCEEDED(spDocument->get_parentWindow(&spWindow)) && spWindow)
        spWindow->get_event(&spEvent);
    return spEvent;
}

_variant_t GetProperty(IDispatch& object, const wchar_t* pszName)
{
    DISPID dispid = DISPID_UNKNOWN;
    DISPPARAMS none = {};
    _variant_t value;
    LPOLESTR pszOleName = const_cast<LPOLESTR>(pszName);
    if (SUCCEEDED(object.GetIDsOfNames(IID_NULL, &pszOleName, 1, LOCALE_USER_DEFAULT, &dispid)))
        object.Invoke(dispid, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &value, nullptr, nullptr);
    return value;
}
} // namespace

STDMETHODIMP CClientSite::ShowContextMenu(DWORD, POINT*, IUnknown*, IDispatch*)
{
    return S_FALSE;
}

STDMETHODIMP CClientSite::GetHostInfo(DOCHOSTUIINFO* pInfo)
{
    if (pInfo == nullptr)
        return E_POINTER;
    pInfo->dwFlags = DOCHOSTUIFLAG_THEME;
    pInfo->dwDoubleClick = DOCHOSTUIDBLCLK_DEFAULT;
    return S_OK;
}

STDMETHODIMP CClientSite::TranslateAccelerator(LPMSG, const GUID*, DWORD)
{
    return S_FALSE;
}

STDMETHODIMP CClientSite::GetExternal(IDispatch** ppExternal)
{
    if (ppExternal == nullptr)
        return E_POINTER;
    *ppExternal = nullptr;
    return S_FALSE;
}

STDMETHODIMP CClientSite::TranslateUrl(DWORD, OLECHAR*, OLECHAR** ppszUrl)
{
    if (ppszUrl == nullptr)
        return E_POINTER;
    *ppszUrl = nullptr;
    return S_FALSE;
}

STDMETHODIMP CClientSite::QueryStatus(const GUID*, ULONG cCommands, OLECMD* pCommands, OLECMDTEXT*)
{
    if (pCommands == nullptr)
        return E_POINTER;
    for (ULONG i = 0; i < cCommands; ++i)
        pCommands[i].cmdf = pCommands[i].cmdID == OLECMDID_SHOWSCRIPTERROR ? OLECMDF_SUPPORTED | OLECMDF_ENABLED : 0;
    return S_OK;
}

STDMETHODIMP CClientSite::Exec(const GUID*, DWORD nCommand, DWORD, VARIANT* pvIn, VARIANT* pvOut)
{
    if (nCommand != OLECMDID_SHOWSCRIPTERROR)
        return OLECMDERR_E_NOTSUPPORTED;
    return ComBoundary([&]() -> HRESULT {
        const ComPtr<IHTMLEventObj> spEvent = GetErrorEvent(pvIn);
        if (!spEvent)
            return E_INVALIDARG;
        if (m_pBrowser == nullptr)
            return RPC_E_DISCONNECTED;
        const _variant_t message = GetProperty(*spEvent.Get(), L"errorMessage");
        const _variant_t url = GetProperty(*spEvent.Get(), L"errorUrl");
        const _variant_t line = GetProperty(*spEvent.Get(), L"errorLine");
        const bool bGoOn = m_pBrowser->GetWindow()->ShowScriptError(GetOptionalText(&message), GetOptionalText(&url),
                                                                    GetOptionalNumber(&line));
        if (pvOut != nullptr)
            *pvOut = _variant_t(bGoOn).Detach();
        return S_OK;
    });
}
