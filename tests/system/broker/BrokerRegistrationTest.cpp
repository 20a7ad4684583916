// What the broker writes when it registers itself, and what it leaves.

#include "broker/SettingsBroker.h"
#include "controls/ModuleManifest.h"
#include "framework/Handles.h"
#include "tests/system/BuiltFile.h"
#include "tests/system/ChildProcess.h"
#include "tests/system/RegistryDump.h"

#include <windows.h>
#include <gmock/gmock.h>
#include <oleauto.h>
#include <sddl.h>
#include <wrl/client.h>

#include <cstring>
#include <string>
#include <vector>

using Microsoft::WRL::ComPtr;
using testing::IsEmpty;

namespace
{
constexpr wchar_t ClassKey[] = L"Software\\Classes\\CLSID\\{E4F1E3E2-7B75-4AFB-AD12-A4D821983377}";
constexpr wchar_t AppIdKey[] = L"Software\\Classes\\AppID\\{B826BA22-6A47-4627-B9BE-C053079C3B9C}";
constexpr wchar_t ProgramKey[] = L"Software\\Classes\\AppID\\TrelvixBroker.exe";
constexpr wchar_t PolicyKey[] = L"Software\\Microsoft\\Internet Explorer\\Low Rights\\ElevationPolicy\\"
                                L"{7B32C768-7FCB-44DD-9BC6-1192A3E739A1}";
constexpr wchar_t InterfaceKey[] = L"Software\\Classes\\Interface\\{76D72D89-D73F-46D9-AB7F-DDB094A8FDB7}";
constexpr wchar_t LibraryKey[] = L"Software\\Classes\\TypeLib\\{F690D12C-039F-4DA7-B83A-788C22ADDEBB}\\1.0";

std::wstring GetProgram()
{
    return GetShippedFile(L"TrelvixBroker.exe").wstring();
}

DWORD RunBroker(const std::wstring& strArguments)
{
    return RunProgram(GetProgram(), strArguments);
}

/// Whether a key has these values, each told by its path below the key.
testing::AssertionResult Has(const std::wstring& strKey, const CRegistryDump& values)
{
    const CRegistryDump dump = DumpRegistry(HKEY_LOCAL_MACHINE, strKey);
    for (const auto& [strName, strText] : values)
    {
        const auto entry = dump.find(ToLower(strKey + L"\\" + strName));
        if (entry == dump.end() || entry->second != strText)
            return testing::AssertionFailure() << testing::PrintToString(strName) << " isn't there or another";
    }
    return testing::AssertionSuccess();
}

CRegistryDump Dump(const std::wstring& strKey)
{
    return DumpRegistry(HKEY_LOCAL_MACHINE, strKey);
}

/// Interactive users, the system and all application containers, at low integrity as well.
std::wstring Rights(const wchar_t* pszMask)
{
    std::wstring strRights = L"O:BAG:BAD:";
    for (const wchar_t* pszWho : {L"IU", L"SY", L"S-1-15-2-1"})
        strRights += std::wstring(L"(A;;") + pszMask + L";;;" + pszWho + L")";
    return strRights + L"S:(ML;;NX;;;LW)";
}

/// Whether a value of the application's key holds these rights.
testing::AssertionResult Grants(const wchar_t* pszValue, const std::wstring& strRights)
{
    PSECURITY_DESCRIPTOR pConverted = nullptr;
    ULONG nExpected = 0;
    ConvertStringSecurityDescriptorToSecurityDescriptorW(strRights.c_str(), SDDL_REVISION_1, &pConverted, &nExpected);
    const CUniqueHandle<PSECURITY_DESCRIPTOR, LocalFree> expected(pConverted);
    std::vector<BYTE> stored(nExpected);
    DWORD nStored = nExpected;
    const LSTATUS status =
        RegGetValueW(HKEY_LOCAL_MACHINE, AppIdKey, pszValue, RRF_RT_REG_BINARY, nullptr, stored.data(), &nStored);
    if (status != ERROR_SUCCESS || nStored != nExpected || memcmp(stored.data(), expected.get(), nExpected) != 0)
        return testing::AssertionFailure() << "other rights, or none: " << status;
    return testing::AssertionSuccess();
}

class BrokerRegistration : public testing::Test
{
protected:
    BrokerRegistration() { RunBroker(L"/UnregServer"); }
    ~BrokerRegistration() override { RunBroker(L"/UnregServer"); }
};
} // namespace

TEST_F(BrokerRegistration, NamesTheProgramAsTheLocalServerOfItsClass)
{
    ASSERT_EQ(0u, RunBroker(L"/RegServer"));
    EXPECT_TRUE(Has(ClassKey, {{L"AppID", L"{B826BA22-6A47-4627-B9BE-C053079C3B9C}"},
                               {L"LocalServer32\\@", L"\"" + GetProgram() + L"\""},
                               {L"LocalServer32\\ServerExecutable", GetProgram()},
                               {L"TypeLib\\@", L"{F690D12C-039F-4DA7-B83A-788C22ADDEBB}"},
                               {L"Version\\@", L"1.0"}}));
}

TEST_F(BrokerRegistration, LetsClientsOfLowRightsStartAndCallIt)
{
    ASSERT_EQ(0u, RunBroker(L"/RegServer"));
    EXPECT_TRUE(Has(ProgramKey, {{L"AppID", L"{B826BA22-6A47-4627-B9BE-C053079C3B9C}"}}));
    EXPECT_TRUE(Grants(L"LaunchPermission", Rights(L"0xB")));
    EXPECT_TRUE(Grants(L"AccessPermission", Rights(L"0x3")));
}

TEST_F(BrokerRegistration, LetsTheBrowserStartItWithoutAQuestion)
{
    ASSERT_EQ(0u, RunBroker(L"/RegServer"));
    EXPECT_TRUE(Has(PolicyKey, {{L"AppName", L"TrelvixBroker.exe"},
                                {L"AppPath", GetShippedFile(L"TrelvixBroker.exe").parent_path().wstring()},
                                {L"CLSID", L"{E4F1E3E2-7B75-4AFB-AD12-A4D821983377}"},
                                {L"Policy", L"3"}}));
}

TEST_F(BrokerRegistration, LeavesTheMarshallingToThePlatform)
{
    ASSERT_EQ(0u, RunBroker(L"/RegServer"));
    EXPECT_TRUE(Has(InterfaceKey, {{L"ProxyStubClsid32\\@", L"{00020424-0000-0000-C000-000000000046}"},
                                   {L"TypeLib\\@", L"{F690D12C-039F-4DA7-B83A-788C22ADDEBB}"}}));
    EXPECT_TRUE(Has(LibraryKey, {{L"0\\win64\\@", GetProgram()}}));
}

TEST_F(BrokerRegistration, SaysTheSameTheSecondTime)
{
    ASSERT_EQ(0u, RunBroker(L"/RegServer"));
    const CRegistryDump once = Dump(L"Software");
    EXPECT_EQ(0u, RunBroker(L"-regserver"));
    EXPECT_EQ(once, Dump(L"Software"));
}

TEST_F(BrokerRegistration, LeavesNothingBehindWhenItIsTakenBack)
{
    const CRegistryDump before = Dump(L"Software");
    ASSERT_EQ(0u, RunBroker(L"/RegServer"));
    EXPECT_EQ(0u, RunBroker(L"/UnregServer"));
    const CRegistryDump after = Dump(L"Software");
    EXPECT_THAT(GetAdded(before, after), IsEmpty());
    EXPECT_THAT(GetAdded(after, before), IsEmpty());
}

TEST_F(BrokerRegistration, LeavesThePoliciesOfOthersAlone)
{
    const std::wstring strOther = L"Software\\Microsoft\\Internet Explorer\\Low Rights\\ElevationPolicy\\{Other}";
    const DWORD dwPolicy = 1;
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, strOther.c_str(), L"Policy", REG_DWORD, &dwPolicy, sizeof(dwPolicy));
    const CRegistryDump before = Dump(L"Software\\Microsoft\\Internet Explorer");
    RunBroker(L"/RegServer");
    RunBroker(L"/UnregServer");
    EXPECT_EQ(before, Dump(L"Software\\Microsoft\\Internet Explorer"));
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\Internet Explorer\\Low Rights");
}

TEST_F(BrokerRegistration, CanBeTakenBackWhereItWasNeverMade)
{
    const CRegistryDump before = Dump(L"Software");
    EXPECT_EQ(0u, RunBroker(L"/UnregServer"));
    EXPECT_EQ(before, Dump(L"Software"));
}

TEST_F(BrokerRegistration, IsRefusedForAnUnknownSwitch)
{
    const CRegistryDump before = Dump(L"Software");
    EXPECT_EQ(DWORD {ERROR_INVALID_PARAMETER}, RunBroker(L"/RegServer /Unknown"));
    EXPECT_EQ(before, Dump(L"Software"));
}

TEST(BrokerProgram, CountsInPixelsOfTheScreen)
{
    const std::wstring strProgram = GetProgram();
    ACTCTXW manifest = {};
    manifest.cbSize = sizeof(manifest);
    manifest.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID;
    manifest.lpSource = strProgram.c_str();
    manifest.lpResourceName = CREATEPROCESS_MANIFEST_RESOURCE_ID;
    const HANDLE hContext = CreateActCtxW(&manifest);
    ASSERT_NE(INVALID_HANDLE_VALUE, hContext);
    const CUniqueActCtx context(hContext);
    wchar_t szAware[16] = {};
    EXPECT_TRUE(QueryActCtxSettingsW(0, hContext, nullptr, L"dpiAware", szAware, ARRAYSIZE(szAware), nullptr));
    EXPECT_STREQ(L"true/pm", szAware);
}

TEST(BrokerTypeLibrary, TellsOfADualInterfaceWithExecuteInTheEighthSlot)
{
    ComPtr<ITypeLib> spLibrary;
    ASSERT_EQ(S_OK, LoadTypeLibEx(GetProgram().c_str(), REGKIND_NONE, &spLibrary));
    ComPtr<ITypeInfo> spDispatch;
    ASSERT_EQ(S_OK, spLibrary->GetTypeInfoOfGuid(__uuidof(ISettingsBroker), &spDispatch));
    HREFTYPE hInterface = 0;
    ASSERT_EQ(S_OK, spDispatch->GetRefTypeOfImplType(-1, &hInterface)) << "not dual";
    ComPtr<ITypeInfo> spInterface;
    ASSERT_EQ(S_OK, spDispatch->GetRefTypeInfo(hInterface, &spInterface));
    FUNCDESC* pFunction = nullptr;
    ASSERT_EQ(S_OK, spInterface->GetFuncDesc(0, &pFunction));
    EXPECT_EQ(7 * static_cast<int>(sizeof(void*)), pFunction->oVft);
    ASSERT_EQ(3, pFunction->cParams);
    for (int n = 0; n < pFunction->cParams; ++n)
    {
        const TYPEDESC& type = pFunction->lprgelemdescParam[n].tdesc;
        EXPECT_EQ(VT_PTR, type.vt);
        EXPECT_EQ(VT_BSTR, type.lptdesc->vt);
    }
    spInterface->ReleaseFuncDesc(pFunction);
}
