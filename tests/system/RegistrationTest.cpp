// What the platform's own regsvr32 writes for the library, and what it leaves. Registered for the machine, so these
// tests run in a Wine prefix of their own.

#include "framework/Handles.h"
#include "tests/system/BuiltFile.h"
#include "tests/system/ChildProcess.h"
#include "tests/system/RegistryDump.h"
#include "tests/system/ServerModule.h"

#include <windows.h>
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <string>

using testing::Contains;
using testing::IsEmpty;
using testing::Key;
using testing::Not;
using testing::Pair;

namespace
{
constexpr wchar_t ToolbarKey[] = L"Software\\Microsoft\\Internet Explorer\\Toolbar";
constexpr wchar_t BandClass[] = L"{3E1201F4-1707-409F-BB45-A5F192381DA0}";
constexpr wchar_t HandlerClass[] = L"{AB9DE66B-FEF9-421E-ADB9-FB6946E3EBDC}";
constexpr wchar_t TypeLibrary[] = L"{F8A95503-57E9-4900-8863-87B12992CFC6}";
constexpr wchar_t BandInterface[] = L"{CCC31D3D-3ED3-472A-803D-4AB898145535}";
constexpr wchar_t HandlerInterface[] = L"{2CB5F4A4-7F4A-4563-9B96-E0EDB5E26740}";
constexpr wchar_t AppContainerCompatible[] = L"{59FB2056-D625-48D0-A944-1A85B5AB2640}";
constexpr wchar_t AutomationMarshaler[] = L"{00020424-0000-0000-C000-000000000046}";

/// REG_BINARY without data, as a dump tells it.
constexpr wchar_t EmptyBinary[] = L"3:";

std::wstring GetLibrary()
{
    return GetShippedFile(L"Trelvix.x64.dll").wstring();
}

DWORD RunRegsvr32(const std::wstring& strOptions, const std::wstring& strLibrary)
{
    wchar_t szFolder[MAX_PATH] = {};
    GetSystemDirectoryW(szFolder, MAX_PATH);
    return RunProgram(std::wstring(szFolder) + L"\\regsvr32.exe", L"/s " + strOptions + L" \"" + strLibrary + L"\"");
}

DWORD Register()
{
    return RunRegsvr32(L"", GetLibrary());
}

DWORD Unregister()
{
    return RunRegsvr32(L"/u", GetLibrary());
}

std::wstring Classes(const std::wstring& strPath)
{
    return L"Software\\Classes\\" + strPath;
}

std::wstring ClassKey(const std::wstring& strClass)
{
    return Classes(L"CLSID\\" + strClass);
}

/// What a registration script writes for a class.
CRegistryDump DescribeClass(const std::wstring& strProgId, const std::wstring& strClass,
                            const std::wstring& strProgIdText, const std::wstring& strClassText)
{
    const std::wstring strVersioned = Classes(strProgId + L".1");
    const std::wstring strUnversioned = Classes(strProgId);
    const std::wstring strKey = ClassKey(strClass);
    return {
        {strVersioned + L"\\", L""},
        {strVersioned + L"\\@", strProgIdText},
        {strVersioned + L"\\CLSID\\", L""},
        {strVersioned + L"\\CLSID\\@", strClass},
        {strUnversioned + L"\\", L""},
        {strUnversioned + L"\\@", strProgIdText},
        {strUnversioned + L"\\CLSID\\", L""},
        {strUnversioned + L"\\CLSID\\@", strClass},
        {strUnversioned + L"\\CurVer\\", L""},
        {strUnversioned + L"\\CurVer\\@", strProgId + L".1"},
        {strKey + L"\\", L""},
        {strKey + L"\\@", strClassText},
        {strKey + L"\\ProgID\\", L""},
        {strKey + L"\\ProgID\\@", strProgId + L".1"},
        {strKey + L"\\VersionIndependentProgID\\", L""},
        {strKey + L"\\VersionIndependentProgID\\@", strProgId},
        {strKey + L"\\Programmable\\", L""},
        {strKey + L"\\InprocServer32\\", L""},
        {strKey + L"\\InprocServer32\\@", GetLibrary()},
        {strKey + L"\\InprocServer32\\ThreadingModel", L"Apartment"},
        {strKey + L"\\TypeLib\\", L""},
        {strKey + L"\\TypeLib\\@", TypeLibrary},
    };
}

/// What the platform writes for a dual interface of a registered type library, at least.
CRegistryDump DescribeInterface(const std::wstring& strInterface, const std::wstring& strName)
{
    const std::wstring strKey = Classes(L"Interface\\" + strInterface);
    return {
        {strKey + L"\\", L""},
        {strKey + L"\\@", strName},
        {strKey + L"\\ProxyStubClsid\\", L""},
        {strKey + L"\\ProxyStubClsid\\@", AutomationMarshaler},
        {strKey + L"\\ProxyStubClsid32\\", L""},
        {strKey + L"\\ProxyStubClsid32\\@", AutomationMarshaler},
        {strKey + L"\\TypeLib\\", L""},
        {strKey + L"\\TypeLib\\@", TypeLibrary},
        {strKey + L"\\TypeLib\\Version", L"1.0"},
    };
}

/// What the platform writes for a type library at least.
CRegistryDump DescribeTypeLibrary()
{
    const std::wstring strKey = Classes(L"TypeLib\\") + TypeLibrary;
    const std::filesystem::path library = GetLibrary();
    return {
        {strKey + L"\\", L""},
        {strKey + L"\\1.0\\", L""},
        {strKey + L"\\1.0\\@", L"Trelvix 1.0 Type Library"},
        {strKey + L"\\1.0\\0\\", L""},
        {strKey + L"\\1.0\\0\\win64\\", L""},
        {strKey + L"\\1.0\\0\\win64\\@", library.wstring()},
        {strKey + L"\\1.0\\HELPDIR\\", L""},
        {strKey + L"\\1.0\\HELPDIR\\@", library.parent_path().wstring()},
    };
}

/// What tells that the band may live in a process of the enhanced protected mode.
CRegistryDump DescribeCategory()
{
    const std::wstring strKey = ClassKey(BandClass) + L"\\Implemented Categories\\";
    return {{strKey, L""}, {strKey + AppContainerCompatible + L"\\", L""}};
}

CRegistryDump DescribeBandClass()
{
    return DescribeClass(L"Trelvix.ATLTrelvix", BandClass, L"Trelvix", L"Trelvix (Toolbar)");
}

CRegistryDump DescribeHandlerClass()
{
    return DescribeClass(L"Trelvix.TrelvixMSHTMLUIHandler", HandlerClass, L"TrelvixMSHTMLUIHandler Class",
                         L"TrelvixMSHTMLUIHandler Class");
}

CRegistryDump DescribeAll()
{
    CRegistryDump parts = {{std::wstring(ToolbarKey) + L"\\" + BandClass, EmptyBinary}};
    for (const CRegistryDump& part : {DescribeBandClass(), DescribeCategory(), DescribeHandlerClass(),
                                      DescribeTypeLibrary(), DescribeInterface(BandInterface, L"IATLTrelvix"),
                                      DescribeInterface(HandlerInterface, L"ITrelvixMSHTMLUIHandler")})
        parts.insert(part.begin(), part.end());
    CRegistryDump all;
    for (const auto& [strPath, strText] : parts)
        all[ToLower(strPath)] = strText;
    return all;
}

/// All that a registration can touch and more: everything that is installed for the machine and for the person.
CRegistryDump DumpEverything()
{
    CRegistryDump dump = DumpRegistry(HKEY_LOCAL_MACHINE, L"Software");
    for (const auto& [strPath, strText] : DumpRegistry(HKEY_CURRENT_USER, L"Software"))
        dump[L"hkcu\\" + strPath] = strText;
    return dump;
}

/// The keys of the library alone, which takes less time.
CRegistryDump DumpOwnKeys()
{
    CRegistryDump dump = DumpRegistry(HKEY_LOCAL_MACHINE, ToolbarKey);
    for (const std::wstring& strKey :
         {Classes(L"Trelvix.ATLTrelvix"), Classes(L"Trelvix.ATLTrelvix.1"), Classes(L"Trelvix.TrelvixMSHTMLUIHandler"),
          Classes(L"Trelvix.TrelvixMSHTMLUIHandler.1"), ClassKey(BandClass), ClassKey(HandlerClass),
          Classes(L"TypeLib\\") + TypeLibrary, Classes(L"Interface\\") + BandInterface,
          Classes(L"Interface\\") + HandlerInterface})
        dump.merge(DumpRegistry(HKEY_LOCAL_MACHINE, strKey));
    return dump;
}

void WriteText(HKEY hRoot, const std::wstring& strKey, const std::wstring& strText)
{
    RegSetKeyValueW(hRoot, strKey.c_str(), nullptr, REG_SZ, strText.c_str(),
                    static_cast<DWORD>((strText.size() + 1) * sizeof(wchar_t)));
}

/// Whether an entry is one of the platform's for the type library and its interfaces, of which each system has its own.
bool IsOfTypeLibrary(const std::wstring& strPath)
{
    const auto names = {TypeLibrary, BandInterface, HandlerInterface};
    return std::any_of(names.begin(), names.end(),
                       [&](const wchar_t* pszName) { return strPath.find(ToLower(pszName)) != std::wstring::npos; });
}

/// What was written beyond what is asked for.
CRegistryDump FindUnexpected(const CRegistryDump& before, const CRegistryDump& registered)
{
    CRegistryDump unexpected = GetAdded(DescribeAll(), GetAdded(before, registered));
    std::erase_if(unexpected, [](const auto& entry) { return IsOfTypeLibrary(entry.first); });
    return unexpected;
}

/// Shows this process a machine's part of the registry in which no key can be made, as if it lacked the rights. The
/// classes are not concerned, since they have a root of their own.
class CReadOnlyMachine
{
public:
    CReadOnlyMachine()
    {
        // Below a key that is gone at the next start no lasting one can stand.
        HKEY hKey = nullptr;
        RegCreateKeyExW(HKEY_CURRENT_USER, L"Software\\TrelvixReadOnly", 0, nullptr, REG_OPTION_VOLATILE,
                        KEY_ALL_ACCESS, nullptr, &hKey, nullptr);
        const CUniqueRegistryKey key(hKey);
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, key.get());
    }
    ~CReadOnlyMachine()
    {
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
        RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\TrelvixReadOnly");
    }
};

/// A copy of the library in a folder of its own beside the built one.
class CLibraryCopy
{
public:
    explicit CLibraryCopy(const wchar_t* pszFolder)
        : m_folder(std::filesystem::path(GetLibrary()).replace_filename(pszFolder))
    {
        std::filesystem::create_directory(m_folder);
        std::filesystem::copy_file(GetLibrary(), GetPath(), std::filesystem::copy_options::overwrite_existing);
    }
    CLibraryCopy(const CLibraryCopy&) = delete;
    CLibraryCopy& operator=(const CLibraryCopy&) = delete;
    ~CLibraryCopy()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }

    std::filesystem::path GetPath() const { return m_folder / L"Trelvix.x64.dll"; }

private:
    const std::filesystem::path m_folder;
};

/// Starts and ends with nothing registered. The browser's key is there from the beginning, as on a machine with a
/// browser.
class Registration : public testing::Test
{
protected:
    Registration()
    {
        HKEY hKey = nullptr;
        RegCreateKeyExW(HKEY_LOCAL_MACHINE, ToolbarKey, 0, nullptr, 0, KEY_WRITE, nullptr, &hKey, nullptr);
        const CUniqueRegistryKey key(hKey);
        Unregister();
    }
    ~Registration() override { Unregister(); }
};
} // namespace

TEST_F(Registration, WritesItsOwnEntriesAndNothingElseAndLeavesNothingWhenItIsTakenBack)
{
    const CRegistryDump before = DumpEverything();
    EXPECT_EQ(0u, Register());
    const CRegistryDump registered = DumpEverything();
    EXPECT_THAT(GetAdded(registered, DescribeAll()), IsEmpty()) << "missing";
    EXPECT_THAT(FindUnexpected(before, registered), IsEmpty());
    EXPECT_EQ(0u, Unregister());
    const CRegistryDump after = DumpEverything();
    EXPECT_THAT(GetAdded(before, after), IsEmpty()) << "left behind";
    EXPECT_THAT(GetAdded(after, before), IsEmpty()) << "taken away";
}

TEST_F(Registration, SaysTheSameTheSecondTime)
{
    Register();
    const CRegistryDump once = DumpOwnKeys();
    EXPECT_EQ(0u, Register());
    EXPECT_EQ(once, DumpOwnKeys());
}

TEST_F(Registration, ReplacesTheClassKeysThatStandThere)
{
    Register();
    const CRegistryDump once = DumpOwnKeys();
    for (const wchar_t* pszClass : {BandClass, HandlerClass})
    {
        WriteText(HKEY_LOCAL_MACHINE, ClassKey(pszClass) + L"\\Left\\Over", L"old");
        WriteText(HKEY_LOCAL_MACHINE, ClassKey(pszClass) + L"\\Programmable\\Left\\Over", L"old");
        WriteText(HKEY_LOCAL_MACHINE, ClassKey(pszClass) + L"\\InprocServer32", L"old.dll");
    }
    Register();
    EXPECT_EQ(once, DumpOwnKeys());
}

TEST_F(Registration, TakesBackWhatOthersWroteBelowTheClassKeys)
{
    const CRegistryDump before = DumpOwnKeys();
    Register();
    for (const wchar_t* pszClass : {BandClass, HandlerClass})
        WriteText(HKEY_LOCAL_MACHINE, ClassKey(pszClass) + L"\\Left\\Over", L"old");
    EXPECT_EQ(0u, Unregister());
    EXPECT_EQ(before, DumpOwnKeys());
}

TEST_F(Registration, TellsThePathOfALibraryInAFolderWithAnApostrophe)
{
    const CLibraryCopy copy(L"it's");
    EXPECT_EQ(0u, RunRegsvr32(L"", copy.GetPath()));
    const CRegistryDump own = DumpOwnKeys();
    for (const wchar_t* pszClass : {BandClass, HandlerClass})
        EXPECT_THAT(own,
                    Contains(Pair(ToLower(ClassKey(pszClass)) + L"\\inprocserver32\\@", copy.GetPath().wstring())));
    EXPECT_EQ(0u, RunRegsvr32(L"/u", copy.GetPath()));
    EXPECT_THAT(DumpOwnKeys(), Not(Contains(Key(ToLower(ClassKey(BandClass)) + L"\\"))));
}

TEST_F(Registration, LeavesTheOtherToolbarsOfTheBrowserAlone)
{
    const std::wstring strOther = L"{00000000-1111-2222-3333-444444444444}";
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, ToolbarKey, strOther.c_str(), REG_BINARY, nullptr, 0);
    const CRegistryDump before = DumpRegistry(HKEY_LOCAL_MACHINE, ToolbarKey);
    Register();
    Unregister();
    EXPECT_EQ(before, DumpRegistry(HKEY_LOCAL_MACHINE, ToolbarKey));
    RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, ToolbarKey, strOther.c_str());
}

TEST_F(Registration, LeavesTheSettingsInPlaceWhenItIsTakenBack)
{
    const std::wstring strSettings = L"Software\\Halmere Works\\Trelvix\\v5\\Options";
    Register();
    WriteText(HKEY_CURRENT_USER, strSettings, L"kept");
    Unregister();
    const CRegistryDump settings = {{ToLower(strSettings) + L"\\", L""}, {ToLower(strSettings) + L"\\@", L"kept"}};
    EXPECT_EQ(settings, DumpRegistry(HKEY_CURRENT_USER, strSettings));
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Halmere Works");
}

TEST_F(Registration, CanBeTakenBackWhereItWasNeverMade)
{
    const CRegistryDump before = DumpOwnKeys();
    EXPECT_EQ(0u, Unregister());
    EXPECT_EQ(before, DumpOwnKeys());
}

TEST_F(Registration, MakesTheBrowsersKeyWhereItIsMissing)
{
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, ToolbarKey);
    Register();
    const CRegistryDump toolbars = DumpRegistry(HKEY_LOCAL_MACHINE, ToolbarKey);
    EXPECT_THAT(toolbars, Contains(Pair(ToLower(std::wstring(ToolbarKey) + L"\\" + BandClass), EmptyBinary)));
}

TEST_F(Registration, TellsOfTheClassesAloneWhereTheBrowsersKeyCantBeWritten)
{
    OleInitialize(nullptr);
    {
        const CServerModule module;
        const CReadOnlyMachine machine;
        EXPECT_EQ(S_OK, module.RegisterServer());
    }
    OleUninitialize();
    const CRegistryDump own = DumpOwnKeys();
    EXPECT_THAT(own, Contains(Pair(ToLower(ClassKey(BandClass)) + L"\\@", L"Trelvix (Toolbar)")));
    EXPECT_THAT(own, Not(Contains(Key(ToLower(std::wstring(ToolbarKey) + L"\\" + BandClass)))));
}
