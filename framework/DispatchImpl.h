#pragma once

#include "framework/ComBoundary.h"
#include "framework/ComModule.h"

#include <windows.h>
#include <oaidl.h>
#include <wrl/client.h>

/// The standard IDispatch of a dual interface, over its type information in the module's type library.
template <class Interface>
class IDispatchImpl : public Interface
{
public:
    STDMETHODIMP GetTypeInfoCount(UINT* pctinfo) override
    {
        if (pctinfo == nullptr)
            return E_POINTER;
        *pctinfo = 1;
        return S_OK;
    }

    STDMETHODIMP GetTypeInfo(UINT iTInfo, LCID, ITypeInfo** ppTInfo) override
    {
        if (ppTInfo == nullptr)
            return E_POINTER;
        *ppTInfo = nullptr;
        if (iTInfo != 0)
            return DISP_E_BADINDEX;
        const HRESULT hr = LoadTypeInfo();
        return FAILED(hr) ? hr : m_spTypeInfo.CopyTo(ppTInfo);
    }

    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* rgszNames, UINT cNames, LCID, DISPID* rgDispId) override
    {
        if (rgszNames == nullptr || rgDispId == nullptr)
            return E_POINTER;
        const HRESULT hr = LoadTypeInfo();
        return FAILED(hr) ? hr : m_spTypeInfo->GetIDsOfNames(rgszNames, cNames, rgDispId);
    }

    STDMETHODIMP Invoke(DISPID dispIdMember, REFIID, LCID, WORD wFlags, DISPPARAMS* pDispParams, VARIANT* pVarResult,
                        EXCEPINFO* pExcepInfo, UINT* puArgErr) override
    {
        if (pDispParams == nullptr)
            return E_INVALIDARG;
        const HRESULT hr = LoadTypeInfo();
        return FAILED(hr) ? hr
                          : m_spTypeInfo->Invoke(static_cast<Interface*>(this), dispIdMember, wFlags, pDispParams,
                                                 pVarResult, pExcepInfo, puArgErr);
    }

private:
    HRESULT LoadTypeInfo()
    {
        if (m_spTypeInfo)
            return S_OK;
        return ComBoundary([&] { return CComModule::LoadTypeInfo(__uuidof(Interface), &m_spTypeInfo); });
    }

    Microsoft::WRL::ComPtr<ITypeInfo> m_spTypeInfo;
};
