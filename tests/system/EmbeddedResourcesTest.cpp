// The version, the manifest and the registration scripts that are embedded in the library as it ships.

#include "tests/system/BuiltFile.h"
#include "tests/system/ServerModule.h"

#include <windows.h>
#include <gmock/gmock.h>

#include <string>
#include <vector>

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace
{
constexpr int nManifest = 2;
constexpr int nBandScript = 102;
constexpr int nHandlerScript = 149;

/// The bytes of a resource of the library; none when it has no such resource.
std::string ReadResource(int nResource, const wchar_t* pszType)
{
    const CServerModule module;
    const HRSRC hResource = FindResourceW(module.GetHandle(), MAKEINTRESOURCEW(nResource), pszType);
    if (hResource == nullptr)
        return {};
    const void* pData = LockResource(LoadResource(module.GetHandle(), hResource));
    return std::string(static_cast<const char*>(pData), SizeofResource(module.GetHandle(), hResource));
}

std::vector<BYTE> ReadVersionBlock()
{
    const std::wstring strLibrary = GetShippedFile(L"Trelvix.x64.dll").wstring();
    std::vector<BYTE> block(GetFileVersionInfoSizeW(strLibrary.c_str(), nullptr));
    GetFileVersionInfoW(strLibrary.c_str(), 0, static_cast<DWORD>(block.size()), block.data());
    return block;
}

std::wstring ReadVersionText(const std::wstring& strName)
{
    const std::vector<BYTE> block = ReadVersionBlock();
    void* pText = nullptr;
    UINT nLength = 0;
    const bool bFound =
        VerQueryValueW(block.data(), (L"\\StringFileInfo\\040904B0\\" + strName).c_str(), &pText, &nLength);
    return bFound ? static_cast<const wchar_t*>(pText) : L"";
}
} // namespace

TEST(EmbeddedManifest, AsksForTheSixthVersionOfTheCommonControls)
{
    EXPECT_THAT(ReadResource(nManifest, RT_MANIFEST),
                AllOf(HasSubstr("Microsoft.Windows.Common-Controls"), HasSubstr("6.0.0.0")));
}

TEST(EmbeddedScripts, NameTheirClassesAndNeverRemoveTheKeyOfAllClasses)
{
    EXPECT_THAT(ReadResource(nBandScript, L"REGISTRY"),
                AllOf(HasSubstr("NoRemove CLSID"), HasSubstr("ForceRemove {3E1201F4-1707-409F-BB45-A5F192381DA0}")));
    EXPECT_THAT(ReadResource(nHandlerScript, L"REGISTRY"),
                AllOf(HasSubstr("NoRemove CLSID"), HasSubstr("ForceRemove {AB9DE66B-FEF9-421E-ADB9-FB6946E3EBDC}")));
}

TEST(EmbeddedResources, HaveTheTypeLibraryAsTheFirstOfItsType)
{
    EXPECT_THAT(ReadResource(1, L"TYPELIB"), Not(IsEmpty()));
}

TEST(EmbeddedVersion, IsSevenForFileAndProduct)
{
    const std::vector<BYTE> block = ReadVersionBlock();
    void* pRoot = nullptr;
    UINT nSize = 0;
    ASSERT_TRUE(VerQueryValueW(block.data(), L"\\", &pRoot, &nSize));
    const auto& version = *static_cast<const VS_FIXEDFILEINFO*>(pRoot);
    EXPECT_EQ(DWORD {MAKELONG(0, 7)}, version.dwFileVersionMS);
    EXPECT_EQ(0u, version.dwFileVersionLS);
    EXPECT_EQ(DWORD {MAKELONG(0, 7)}, version.dwProductVersionMS);
    EXPECT_EQ(0u, version.dwProductVersionLS);
}

TEST(EmbeddedVersion, IsToldAsText)
{
    EXPECT_EQ(L"7.0.0.0", ReadVersionText(L"FileVersion"));
    EXPECT_EQ(L"7.0.0.0", ReadVersionText(L"ProductVersion"));
    EXPECT_EQ(L"Trelvix.x64.dll", ReadVersionText(L"OriginalFilename"));
}
