#pragma once

#include "bench/com/CountedObject.h"

#include <windows.h>
#include <oaidl.h>
#include <ocidl.h>
#include <wrl/client.h>

#include <initializer_list>
#include <map>
#include <vector>

/// The connection point of a browser's events, DWebBrowserEvents2. Sinks are told on the thread of the browser.
class CEventSource : public CCountedObject<CEventSource, IConnectionPoint>
{
    BEGIN_COM_MAP(CEventSource)
        COM_INTERFACE_ENTRY(IConnectionPoint)
    END_COM_MAP()

public:
    /// `container` is the browser; not counted.
    explicit CEventSource(IConnectionPointContainer& container) : m_pContainer(&container) {}
    /// The browser has been closed: nobody is told anything any longer.
    void Detach();

    STDMETHODIMP GetConnectionInterface(IID* pIid) override;
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** ppContainer) override;
    STDMETHODIMP Advise(IUnknown* pSink, DWORD* pdwCookie) override;
    STDMETHODIMP Unadvise(DWORD dwCookie) override;
    STDMETHODIMP EnumConnections(IEnumConnections** ppEnum) override;

    /// Tells an event to each sink that is connected when it begins and still when its turn comes. The arguments stand
    /// in the order of the event's declaration, and what they refer to is shared by all sinks.
    void Fire(DISPID dispid, std::vector<VARIANT> arguments = {});

private:
    IConnectionPointContainer* m_pContainer;
    std::map<DWORD, Microsoft::WRL::ComPtr<IDispatch>> m_sinks; ///< by cookie
    DWORD m_dwLastCookie = 0;
};
