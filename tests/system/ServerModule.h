#pragma once

#include "framework/Handles.h"

#include <windows.h>
#include <unknwn.h>

/// The library as it ships, loaded into the test, with the exports of a COM server. Loading it needs no registration.
class CServerModule
{
public:
    CServerModule();

    HMODULE GetHandle() const { return m_module.get(); }

    HRESULT CanUnloadNow() const;
    HRESULT RegisterServer() const;
    HRESULT GetClassObject(REFCLSID clsid, REFIID iid, void** ppv) const;
    /// Through the class's factory.
    HRESULT CreateInstance(REFCLSID clsid, IUnknown* pOuter, REFIID iid, void** ppv) const;

private:
    template <class Function>
    Function* GetExport(const char* pszName) const
    {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(m_module.get(), pszName)));
    }

    CUniqueModule m_module;
};
