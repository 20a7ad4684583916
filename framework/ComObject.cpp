#include "framework/ComObject.h"

HRESULT CComObjectRoot::InternalQueryInterface(void* pThis, const CComInterfaceEntry* pEntries, REFIID iid, void** ppv)
{
    if (ppv == nullptr)
        return E_POINTER;
    *ppv = nullptr;
    const bool bIdentity = IsEqualIID(iid, IID_IUnknown);
    for (const CComInterfaceEntry* pEntry = pEntries; pEntry->piid != nullptr; ++pEntry)
        if (bIdentity || IsEqualIID(iid, *pEntry->piid))
        {
            auto* pUnknown = reinterpret_cast<IUnknown*>(static_cast<BYTE*>(pThis) + pEntry->offset);
            pUnknown->AddRef();
            *ppv = pUnknown;
            return S_OK;
        }
    return E_NOINTERFACE;
}
