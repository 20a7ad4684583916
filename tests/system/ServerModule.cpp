#include "tests/system/ServerModule.h"

#include "tests/system/BuiltFile.h"

#include <wrl/client.h>

CServerModule::CServerModule() : m_module(LoadLibraryW(GetShippedFile(L"Trelvix.x64.dll").c_str())) {}

HRESULT CServerModule::CanUnloadNow() const
{
    return GetExport<HRESULT STDAPICALLTYPE()>("DllCanUnloadNow")();
}

HRESULT CServerModule::RegisterServer() const
{
    return GetExport<HRESULT STDAPICALLTYPE()>("DllRegisterServer")();
}

HRESULT CServerModule::GetClassObject(REFCLSID clsid, REFIID iid, void** ppv) const
{
    return GetExport<HRESULT STDAPICALLTYPE(REFCLSID, REFIID, void**)>("DllGetClassObject")(clsid, iid, ppv);
}

HRESULT CServerModule::CreateInstance(REFCLSID clsid, IUnknown* pOuter, REFIID iid, void** ppv) const
{
    Microsoft::WRL::ComPtr<IClassFactory> spFactory;
    const HRESULT hr = GetClassObject(clsid, IID_PPV_ARGS(&spFactory));
    return FAILED(hr) ? hr : spFactory->CreateInstance(pOuter, iid, ppv);
}
