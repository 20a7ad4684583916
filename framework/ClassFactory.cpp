#include "framework/ClassFactory.h"

#include "framework/ComBoundary.h"

#include <wrl/client.h>

STDMETHODIMP CComClassFactory::CreateInstance(IUnknown* pUnkOuter, REFIID riid, void** ppv)
{
    if (ppv == nullptr)
        return E_POINTER;
    *ppv = nullptr;
    return ComBoundary([&] { return m_pEntry->pfnCreateInstance(pUnkOuter, riid, ppv); });
}

STDMETHODIMP CComClassFactory::LockServer(BOOL bLock)
{
    if (bLock)
        CComModule::GetModule()->Lock();
    else
        CComModule::GetModule()->Unlock();
    return S_OK;
}

HRESULT CComClassFactory::Create(const CComClassEntry& entry, REFIID iid, void** ppv)
{
    auto* pFactory = new (std::nothrow) CComObject<CComClassFactory>;
    if (pFactory == nullptr)
        return E_OUTOFMEMORY;
    const Microsoft::WRL::ComPtr<IClassFactory> spHolder = pFactory;
    pFactory->m_pEntry = &entry;
    return pFactory->QueryInterface(iid, ppv);
}
