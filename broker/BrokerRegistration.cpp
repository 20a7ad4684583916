#include "broker/BrokerRegistration.h"

#include "broker/resource.h"
#include "framework/ComModule.h"
#include "framework/Handles.h"
#include "framework/Module.h"

#include <sddl.h>

#include <string>

namespace
{
// Interactive users, the system and all application containers may start and call the broker, at low integrity as well.
constexpr wchar_t LaunchRights[] = L"O:BAG:BAD:(A;;0xB;;;IU)(A;;0xB;;;SY)(A;;0xB;;;S-1-15-2-1)S:(ML;;NX;;;LW)";
constexpr wchar_t AccessRights[] = L"O:BAG:BAD:(A;;0x3;;;IU)(A;;0x3;;;SY)(A;;0x3;;;S-1-15-2-1)S:(ML;;NX;;;LW)";

HRESULT SetRights(const wchar_t* value, const wchar_t* rights)
{
    PSECURITY_DESCRIPTOR pConverted = nullptr;
    ULONG size = 0;
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(rights, SDDL_REVISION_1, &pConverted, &size))
        return HRESULT_FROM_WIN32(GetLastError());
    const CUniqueHandle<PSECURITY_DESCRIPTOR, LocalFree> descriptor(pConverted);
    return HRESULT_FROM_WIN32(
        RegSetKeyValueW(HKEY_CLASSES_ROOT, L"AppID\\" BROKER_APPID, value, REG_BINARY, descriptor.get(), size));
}

std::wstring GetProgramFolder()
{
    const std::wstring program = AfxGetModulePath(AfxGetInstanceHandle());
    return program.substr(0, program.rfind(L'\\'));
}

/// The registration script can't tell the folder.
HRESULT SetPolicyFolder()
{
    const std::wstring folder = GetProgramFolder();
    return HRESULT_FROM_WIN32(RegSetKeyValueW(HKEY_LOCAL_MACHINE, ELEVATION_POLICY_KEY, L"AppPath", REG_SZ,
                                              folder.c_str(),
                                              static_cast<DWORD>((folder.size() + 1) * sizeof(wchar_t))));
}

void DeleteEmptyKey(const wchar_t* path)
{
    DWORD subkeys = 0;
    DWORD values = 0;
    HKEY hKey = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, path, 0, KEY_QUERY_VALUE, &hKey) != ERROR_SUCCESS)
        return;
    const CUniqueRegistryKey key(hKey);
    const LSTATUS status = RegQueryInfoKeyW(key.get(), nullptr, nullptr, nullptr, &subkeys, nullptr, nullptr, &values,
                                            nullptr, nullptr, nullptr, nullptr);
    if (status == ERROR_SUCCESS && subkeys == 0 && values == 0)
        RegDeleteKeyW(HKEY_LOCAL_MACHINE, path);
}
} // namespace

HRESULT RegisterBroker(const CComModule& module)
{
    HRESULT hr = module.RegisterServer();
    if (SUCCEEDED(hr))
        hr = SetRights(L"LaunchPermission", LaunchRights);
    if (SUCCEEDED(hr))
        hr = SetRights(L"AccessPermission", AccessRights);
    return FAILED(hr) ? hr : SetPolicyFolder();
}

HRESULT UnregisterBroker(const CComModule& module)
{
    const HRESULT hr = module.UnregisterServer();
    DeleteEmptyKey(ELEVATION_POLICIES_KEY); // where the browser itself has none, the registration made them
    DeleteEmptyKey(LOW_RIGHTS_KEY);
    return hr;
}
