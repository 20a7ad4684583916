#include "framework/ComModule.h"
#include "framework/GuidText.h"
#include "framework/Module.h"
#include "framework/Registrar.h"

#include <comcat.h>
#include <comutil.h>
#include <wrl/client.h>

#include <string>

using Microsoft::WRL::ComPtr;

namespace
{
constexpr UINT TypeLibraryResource = 1;

HRESULT RegisterCategory(const CComClassEntry& entry, bool bRegister)
{
    if (entry.pImplementedCategory == nullptr)
        return S_OK;
    ComPtr<ICatRegister> spCategories;
    const HRESULT hr =
        CoCreateInstance(CLSID_StdComponentCategoriesMgr, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&spCategories));
    if (FAILED(hr))
        return hr;
    CATID category = *entry.pImplementedCategory;
    return bRegister ? spCategories->RegisterClassImplCategories(*entry.pclsid, 1, &category)
                     : spCategories->UnRegisterClassImplCategories(*entry.pclsid, 1, &category);
}

HRESULT RegisterLibrary()
{
    const std::wstring path = AfxGetModulePath(AfxGetInstanceHandle());
    ComPtr<ITypeLib> spLibrary;
    const HRESULT hr = LoadTypeLibEx(path.c_str(), REGKIND_NONE, &spLibrary);
    return FAILED(hr) ? hr : RegisterTypeLib(spLibrary.Get(), const_cast<wchar_t*>(path.c_str()), nullptr);
}

bool IsLibraryRegistered(const GUID& libid)
{
    _bstr_t path;
    return SUCCEEDED(QueryPathOfRegTypeLib(libid, 1, 0, LOCALE_NEUTRAL, path.GetAddress()));
}

HRESULT UnregisterLibrary(const GUID& libid)
{
    return IsLibraryRegistered(libid) ? UnRegisterTypeLib(libid, 1, 0, LOCALE_NEUTRAL, SYS_WIN64) : S_OK;
}

/// The registrar leaves a class key standing that holds keys which its script doesn't name.
void DeleteClassKey(const CLSID& clsid)
{
    RegDeleteTreeW(HKEY_CLASSES_ROOT, (L"CLSID\\" + GetGuidText(clsid)).c_str());
}
} // namespace

HRESULT CComModule::RegisterServer() const
{
    for (const CComClassEntry& entry : m_classes)
    {
        HRESULT hr = RunRegistryScript(entry.nRegistryResource, true);
        if (SUCCEEDED(hr))
            hr = RegisterCategory(entry, true);
        if (FAILED(hr))
            return hr;
    }
    return RegisterLibrary();
}

HRESULT CComModule::UnregisterServer() const
{
    HRESULT hr = UnregisterLibrary(m_libid);
    for (auto row = m_classes.rbegin(); row != m_classes.rend() && SUCCEEDED(hr); ++row)
    {
        RegisterCategory(*row, false); // fails where nothing was registered, and the class key goes with all below it
        hr = RunRegistryScript(row->nRegistryResource, false);
        if (SUCCEEDED(hr))
            DeleteClassKey(*row->pclsid);
    }
    return hr;
}

HRESULT CComModule::LoadTypeInfo(REFGUID guid, ITypeInfo** ppTypeInfo)
{
    const std::wstring path = AfxGetModulePath(AfxGetInstanceHandle()) + L"\\" + std::to_wstring(TypeLibraryResource);
    ComPtr<ITypeLib> spLibrary;
    const HRESULT hr = LoadTypeLibEx(path.c_str(), REGKIND_NONE, &spLibrary);
    return FAILED(hr) ? hr : spLibrary->GetTypeInfoOfGuid(guid, ppTypeInfo);
}
