#pragma once

#include "tests/fakes/FakeObject.h"

#include <windows.h>
#include <ocidl.h>

#include <map>

/// The connection point of a fake browser for its events.
class CFakeConnectionPoint : public CFakeObject<CFakeConnectionPoint, IConnectionPoint>
{
    BEGIN_COM_MAP(CFakeConnectionPoint)
        COM_INTERFACE_ENTRY(IConnectionPoint)
    END_COM_MAP()

public:
    CFakeConnectionPoint() : CFakeObject("ConnectionPoint") {}

    STDMETHODIMP GetConnectionInterface(IID* pIid) override;
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** ppContainer) override;
    STDMETHODIMP Advise(IUnknown* pSink, DWORD* pdwCookie) override;
    STDMETHODIMP Unadvise(DWORD dwCookie) override;
    STDMETHODIMP EnumConnections(IEnumConnections** ppEnum) override;

    size_t GetSinkCount() const { return m_sinks.size(); }
    /// References of their own to the sinks, which may unadvise while they are being told an event.
    std::vector<Microsoft::WRL::ComPtr<IDispatch>> GetSinks() const;

private:
    std::map<DWORD, Microsoft::WRL::ComPtr<IDispatch>> m_sinks; ///< by cookie
    DWORD m_dwLastCookie = 0;
};
