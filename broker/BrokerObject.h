#pragma once

#include "broker/SettingsBroker.h"
#include "framework/ComObject.h"
#include "framework/DispatchImpl.h"

/// The settings broker that a client creates. It may be called from a process of low rights, so it takes every argument
/// for hostile: a request that isn't wholly sound gets an error and changes nothing.
class CBrokerObject : public CComObjectRoot, public IDispatchImpl<ISettingsBroker>
{
    BEGIN_COM_MAP(CBrokerObject)
        COM_INTERFACE_ENTRY(ISettingsBroker)
        COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()

public:
    /// E_INVALIDARG for a verb, key or value that is unknown, null, malformed or longer than MaxSettingBytes,
    /// E_ACCESSDENIED for a setting outside the product's own.
    STDMETHODIMP Execute(BSTR* verb, BSTR* key, BSTR* value) override;
};
