#pragma once

#include "broker/SettingsBroker.h"
#include "tests/fakes/FakeObject.h"

#include <windows.h>
#include <unknwn.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

/// The settings broker over values in memory, which keeps what it was asked for.
class CFakeSettingsBroker : public CFakeObject<CFakeSettingsBroker, ISettingsBroker, IClassFactory>
{
    BEGIN_COM_MAP(CFakeSettingsBroker)
        COM_INTERFACE_ENTRY(ISettingsBroker)
        COM_INTERFACE_ENTRY(IDispatch)
        COM_INTERFACE_ENTRY(IClassFactory)
    END_COM_MAP()

public:
    CFakeSettingsBroker() : CFakeObject("SettingsBroker") {}

    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP Execute(BSTR* pbstrVerb, BSTR* pbstrKey, BSTR* pbstrValue) override;

    /// The object is its own factory: every client gets this one.
    STDMETHODIMP CreateInstance(IUnknown* pOuter, REFIID iid, void** ppv) override;
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

    using CWrite = std::pair<std::wstring, std::wstring>;

    std::map<std::wstring, std::wstring> m_values; ///< by full key
    std::vector<std::wstring> m_reads;             ///< the keys, in order
    std::vector<CWrite> m_writes;                  ///< keys and values, in order
};

/// Stands a fake broker in the place of the real one while the object lives, for this process alone. COM must be
/// initialised.
class CFakeSettingsBrokerServer
{
public:
    CFakeSettingsBrokerServer();
    CFakeSettingsBrokerServer(const CFakeSettingsBrokerServer&) = delete;
    CFakeSettingsBrokerServer& operator=(const CFakeSettingsBrokerServer&) = delete;
    ~CFakeSettingsBrokerServer();

    CFakeSettingsBroker* operator->() const { return m_spBroker.Get(); }

private:
    Microsoft::WRL::ComPtr<CFakeSettingsBroker> m_spBroker;
    DWORD m_dwRegistration = 0;
};
