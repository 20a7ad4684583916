#pragma once

#include "framework/ComModule.h"
#include "framework/ComObject.h"

#include <windows.h>
#include <unknwn.h>

/// The class factory of a row of the class table.
class CComClassFactory : public CComObjectRoot, public IClassFactory
{
    BEGIN_COM_MAP(CComClassFactory)
        COM_INTERFACE_ENTRY(IClassFactory)
    END_COM_MAP()

public:
    STDMETHODIMP CreateInstance(IUnknown* pUnkOuter, REFIID riid, void** ppv) override;
    STDMETHODIMP LockServer(BOOL bLock) override;

    /// A factory for the row, asked for an interface. Clears the out pointer on failure.
    static HRESULT Create(const CComClassEntry& entry, REFIID iid, void** ppv);

protected:
    ~CComClassFactory() = default;

private:
    const CComClassEntry* m_pEntry = nullptr; ///< part of the module's class table, which outlives the factory
};
