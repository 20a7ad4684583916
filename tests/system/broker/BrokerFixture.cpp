#include "tests/system/broker/BrokerFixture.h"

#include "settings/SettingKey.h"
#include "settings/SettingsStore.h"
#include "tests/system/BuiltFile.h"
#include "tests/system/ChildProcess.h"

#include <objbase.h>
#include <tlhelp32.h>

using Microsoft::WRL::ComPtr;

namespace
{
constexpr wchar_t ServerKey[] = L"CLSID\\{E4F1E3E2-7B75-4AFB-AD12-A4D821983377}\\LocalServer32";
constexpr wchar_t ProductKey[] = L"Software\\Halmere Works";
constexpr wchar_t Program[] = L"TrelvixBroker.exe";
constexpr DWORD dwMostMilliseconds = 30000;

DWORD RunBroker(const std::wstring& strArguments)
{
    return RunProgram(GetShippedFile(Program), strArguments);
}

DWORD FindBrokerProcess()
{
    const CUniqueKernelHandle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof(entry);
    for (BOOL bFound = Process32FirstW(snapshot.get(), &entry); bFound; bFound = Process32NextW(snapshot.get(), &entry))
        if (_wcsicmp(entry.szExeFile, Program) == 0)
            return entry.th32ProcessID;
    return 0;
}

/// Owns the text; a null pointer gives none.
BSTR MakeText(const wchar_t* pszText)
{
    return pszText != nullptr ? SysAllocString(pszText) : nullptr;
}
} // namespace

CBrokerTest::CBrokerTest()
{
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    RegDeleteTreeW(HKEY_CURRENT_USER, ProductKey);
    EXPECT_EQ(0u, RunBroker(L"/RegServer"));
}

CBrokerTest::~CBrokerTest()
{
    CoUninitialize();
    EXPECT_EQ(0u, RunBroker(L"/UnregServer"));
    RegDeleteTreeW(HKEY_CURRENT_USER, ProductKey);
}

void CBrokerTest::SetLinger(unsigned nSeconds)
{
    SetServerCommand(L"\"" + GetShippedFile(Program).wstring() + L"\" /Linger:" + std::to_wstring(nSeconds));
}

void CBrokerTest::SetServerCommand(const std::wstring& strCommand)
{
    EXPECT_EQ(ERROR_SUCCESS, RegSetKeyValueW(HKEY_CLASSES_ROOT, ServerKey, nullptr, REG_SZ, strCommand.c_str(),
                                             static_cast<DWORD>((strCommand.size() + 1) * sizeof(wchar_t))));
}

ComPtr<ISettingsBroker> CBrokerTest::CreateBroker()
{
    ComPtr<ISettingsBroker> spBroker;
    EXPECT_EQ(S_OK, CoCreateInstance(CLSID_SettingsBroker, nullptr, CLSCTX_LOCAL_SERVER, IID_PPV_ARGS(&spBroker)));
    return spBroker;
}

HRESULT CBrokerTest::Execute(ISettingsBroker& broker, const wchar_t* pszVerb, const wchar_t* pszKey,
                             std::wstring& strValue)
{
    BSTR verb = MakeText(pszVerb);
    BSTR key = MakeText(pszKey);
    BSTR value = SysAllocStringLen(strValue.data(), static_cast<UINT>(strValue.size()));
    const HRESULT hr = broker.Execute(&verb, &key, &value);
    strValue.assign(value != nullptr ? value : L"", SysStringLen(value));
    SysFreeString(verb);
    SysFreeString(key);
    SysFreeString(value);
    return hr;
}

std::wstring CBrokerTest::ReadValue(ISettingsBroker& broker, const std::wstring& strKey)
{
    std::wstring strValue;
    EXPECT_EQ(S_OK, Execute(broker, ReadVerb, strKey.c_str(), strValue));
    return strValue;
}

CUniqueKernelHandle OpenBrokerProcess()
{
    const DWORD dwProcess = FindBrokerProcess();
    return CUniqueKernelHandle(dwProcess != 0 ? OpenProcess(SYNCHRONIZE | PROCESS_TERMINATE, FALSE, dwProcess)
                                              : nullptr);
}

bool IsEnded(const CUniqueKernelHandle& process, DWORD dwMilliseconds)
{
    return WaitForSingleObject(process.get(), dwMilliseconds) == WAIT_OBJECT_0;
}

void KillBroker()
{
    while (const CUniqueKernelHandle process = OpenBrokerProcess())
    {
        TerminateProcess(process.get(), 1);
        if (!IsEnded(process, dwMostMilliseconds))
            return;
    }
}

std::wstring GetKey(const std::wstring& strSection, const std::wstring& strName)
{
    return BuildSettingKey(SettingsRoot, strSection, strName);
}

DWORD RunSettingsClient(const std::wstring& strSteps)
{
    return RunProgram(GetTestFile(L"settings_client.exe"), strSteps);
}
