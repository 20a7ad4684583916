#include "tests/fakes/FakeConnectionPoint.h"

#include "framework/ComQuery.h"

#include <windows.h>
#include <exdisp.h>
#include <olectl.h>

using Microsoft::WRL::ComPtr;

STDMETHODIMP CFakeConnectionPoint::GetConnectionInterface(IID* pIid)
{
    return Call("GetConnectionInterface", [&] {
        *pIid = DIID_DWebBrowserEvents2;
        return S_OK;
    });
}

STDMETHODIMP CFakeConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** ppContainer)
{
    return Call("GetConnectionPointContainer", ppContainer, [] { return E_NOTIMPL; });
}

STDMETHODIMP CFakeConnectionPoint::Advise(IUnknown* pSink, DWORD* pdwCookie)
{
    return Call("Advise", [&]() -> HRESULT {
        const ComPtr<IDispatch> spSink = QueryFor<IDispatch>(pSink);
        if (!spSink)
            return CONNECT_E_CANNOTCONNECT;
        *pdwCookie = ++m_dwLastCookie;
        m_sinks[m_dwLastCookie] = spSink;
        return S_OK;
    });
}

STDMETHODIMP CFakeConnectionPoint::Unadvise(DWORD dwCookie)
{
    return Call("Unadvise", [&] { return m_sinks.erase(dwCookie) == 1 ? S_OK : CONNECT_E_NOCONNECTION; });
}

STDMETHODIMP CFakeConnectionPoint::EnumConnections(IEnumConnections** ppEnum)
{
    return Call("EnumConnections", ppEnum, [] { return E_NOTIMPL; });
}

std::vector<ComPtr<IDispatch>> CFakeConnectionPoint::GetSinks() const
{
    std::vector<ComPtr<IDispatch>> sinks;
    for (const auto& [dwCookie, spSink] : m_sinks)
        sinks.push_back(spSink);
    return sinks;
}
