#include "bench/com/EventSource.h"

#include "framework/ComBoundary.h"
#include "framework/ComQuery.h"

#include <exdisp.h>

#include <algorithm>
#include <utility>

STDMETHODIMP CEventSource::GetConnectionInterface(IID* pIid)
{
    if (pIid == nullptr)
        return E_POINTER;
    *pIid = DIID_DWebBrowserEvents2;
    return S_OK;
}

STDMETHODIMP CEventSource::GetConnectionPointContainer(IConnectionPointContainer** ppContainer)
{
    if (ppContainer == nullptr)
        return E_POINTER;
    *ppContainer = m_pContainer;
    if (m_pContainer == nullptr)
        return RPC_E_DISCONNECTED;
    m_pContainer->AddRef();
    return S_OK;
}

STDMETHODIMP CEventSource::Advise(IUnknown* pSink, DWORD* pdwCookie)
{
    if (pdwCookie == nullptr)
        return E_POINTER;
    *pdwCookie = 0;
    if (pSink == nullptr)
        return E_POINTER;
    Microsoft::WRL::ComPtr<IDispatch> spSink;
    if (FAILED(pSink->QueryInterface(DIID_DWebBrowserEvents2, &spSink)) &&
        FAILED(pSink->QueryInterface(IID_PPV_ARGS(&spSink))))
        return CONNECT_E_CANNOTCONNECT;
    return ComBoundary([&] {
        m_sinks[++m_dwLastCookie] = spSink;
        *pdwCookie = m_dwLastCookie;
        return S_OK;
    });
}

STDMETHODIMP CEventSource::Unadvise(DWORD dwCookie)
{
    // The sink's last reference may be this one, and what its end does must find it gone from the list.
    const auto gone = m_sinks.extract(dwCookie);
    return gone ? S_OK : CONNECT_E_NOCONNECTION;
}

STDMETHODIMP CEventSource::EnumConnections(IEnumConnections** ppEnum)
{
    if (ppEnum != nullptr)
        *ppEnum = nullptr;
    return E_NOTIMPL;
}

void CEventSource::Detach()
{
    m_pContainer = nullptr;
    // What the end of a sink does must find the list empty.
    const auto sinks = std::exchange(m_sinks, {});
}

void CEventSource::Fire(DISPID dispid, std::vector<VARIANT> arguments)
{
    std::reverse(arguments.begin(), arguments.end());
    DISPPARAMS params = {arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    for (const auto& [dwCookie, spSink] : std::map(m_sinks))
        if (m_sinks.contains(dwCookie))
            spSink->Invoke(dispid, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, nullptr, nullptr, nullptr);
}
