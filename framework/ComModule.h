#pragma once

#include <windows.h>
#include <comcat.h>
#include <oaidl.h>
#include <unknwn.h>

#include <span>

/// A row of a module's class table.
struct CComClassEntry
{
    const CLSID* pclsid;
    UINT nRegistryResource; ///< "REGISTRY" resource with the class's registration script
    HRESULT (*pfnCreateInstance)(IUnknown* pOuter, REFIID iid, void** ppv);
    const CATID* pImplementedCategory; ///< null when the class declares none
};

/// The COM side of a module: its class table, its registration and the count that keeps it loaded.
class CComModule
{
public:
    /// The module's one object; it registers itself for GetModule.
    CComModule();
    CComModule(const CComModule&) = delete;
    CComModule& operator=(const CComModule&) = delete;
    virtual ~CComModule();

    static CComModule* GetModule();

    /// The class table must stay as long as the module.
    void Init(std::span<const CComClassEntry> classes, const GUID& libid);
    void Term();

    virtual void Lock() { InterlockedIncrement(&m_nLockCount); }
    virtual void Unlock() { InterlockedDecrement(&m_nLockCount); }
    LONG GetLockCount() const { return m_nLockCount; }

    /// The factory of a class of the table; CLASS_E_CLASSNOTAVAILABLE for any other. Clears the out pointer on failure.
    HRESULT GetClassObject(REFCLSID clsid, REFIID iid, void** ppv) const;

    /// Runs the classes' scripts, registers their categories and at the end the type library.
    /// The first failure ends the walk and is the result.
    HRESULT RegisterServer() const;
    /// The reverse of RegisterServer. Keys that the registrar leaves behind below a class go as well.
    HRESULT UnregisterServer() const;

    /// The type information of an interface in the type library that is embedded in this module as resource 1.
    static HRESULT LoadTypeInfo(REFGUID guid, ITypeInfo** ppTypeInfo);

private:
    std::span<const CComClassEntry> m_classes;
    GUID m_libid = {};
    LONG m_nLockCount = 0;
};

/// S_OK when the framework stands in the way of no unload: no window has an object attached. Otherwise S_FALSE.
HRESULT AfxDllCanUnloadNow();
