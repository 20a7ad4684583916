#include "framework/Registrar.h"

#include "framework/Module.h"
#include "framework/ReplaceAll.h"

#include <objbase.h>
#include <wrl/client.h>

/// The platform's registrar, in the order of its table. The toolchain's headers don't have it.
/// In no anonymous namespace: the compiler would take it there for a class that nobody implements.
struct IRegistrar : public IUnknown
{
    virtual HRESULT STDMETHODCALLTYPE AddReplacement(LPCOLESTR key, LPCOLESTR item) = 0;
    virtual HRESULT STDMETHODCALLTYPE ClearReplacements() = 0;
    virtual HRESULT STDMETHODCALLTYPE ResourceRegisterSz(LPCOLESTR file, LPCOLESTR id, LPCOLESTR type) = 0;
    virtual HRESULT STDMETHODCALLTYPE ResourceUnregisterSz(LPCOLESTR file, LPCOLESTR id, LPCOLESTR type) = 0;
    virtual HRESULT STDMETHODCALLTYPE FileRegister(LPCOLESTR file) = 0;
    virtual HRESULT STDMETHODCALLTYPE FileUnregister(LPCOLESTR file) = 0;
    virtual HRESULT STDMETHODCALLTYPE StringRegister(LPCOLESTR data) = 0;
    virtual HRESULT STDMETHODCALLTYPE StringUnregister(LPCOLESTR data) = 0;
    virtual HRESULT STDMETHODCALLTYPE ResourceRegister(LPCOLESTR file, UINT id, LPCOLESTR type) = 0;
    virtual HRESULT STDMETHODCALLTYPE ResourceUnregister(LPCOLESTR file, UINT id, LPCOLESTR type) = 0;
};

namespace
{
constexpr CLSID RegistrarClass = {0x44ec053a, 0x400f, 0x11d0, {0x9d, 0xcd, 0x00, 0xa0, 0xc9, 0x03, 0x91, 0xd3}};
constexpr IID RegistrarInterface = {0x44ec053b, 0x400f, 0x11d0, {0x9d, 0xcd, 0x00, 0xa0, 0xc9, 0x03, 0x91, 0xd3}};
} // namespace

HRESULT RunRegistryScript(UINT nResource, bool bRegister)
{
    const std::wstring module = AfxGetModulePath(AfxGetInstanceHandle());
    Microsoft::WRL::ComPtr<IRegistrar> spRegistrar;
    HRESULT hr = CoCreateInstance(RegistrarClass, nullptr, CLSCTX_INPROC_SERVER, RegistrarInterface,
                                  reinterpret_cast<void**>(spRegistrar.GetAddressOf()));
    if (SUCCEEDED(hr))
        hr = spRegistrar->AddReplacement(L"MODULE", ReplaceAll(module, L"'", L"''").c_str()); // scripts quote with '
    if (FAILED(hr))
        return hr;
    return bRegister ? spRegistrar->ResourceRegister(module.c_str(), nResource, L"REGISTRY")
                     : spRegistrar->ResourceUnregister(module.c_str(), nResource, L"REGISTRY");
}
