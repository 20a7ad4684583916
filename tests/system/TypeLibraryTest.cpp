// The type library that is embedded in the library as it ships.

#include "resources/Trelvix.h"
#include "tests/system/BuiltFile.h"

#include <windows.h>
#include <comutil.h>
#include <gtest/gtest.h>
#include <oaidl.h>
#include <wrl/client.h>

#include <span>
#include <string>
#include <vector>

using Microsoft::WRL::ComPtr;

namespace
{
constexpr CLSID BandClass = {0x3E1201F4, 0x1707, 0x409F, {0xBB, 0x45, 0xA5, 0xF1, 0x92, 0x38, 0x1D, 0xA0}};
constexpr CLSID HandlerClass = {0xAB9DE66B, 0xFEF9, 0x421E, {0xAD, 0xB9, 0xFB, 0x69, 0x46, 0xE3, 0xEB, 0xDC}};
constexpr IID BandInterface = {0xCCC31D3D, 0x3ED3, 0x472A, {0x80, 0x3D, 0x4A, 0xB8, 0x98, 0x14, 0x55, 0x35}};
constexpr IID HandlerInterface = {0x2CB5F4A4, 0x7F4A, 0x4563, {0x9B, 0x96, 0xE0, 0xED, 0xB5, 0xE2, 0x67, 0x40}};
constexpr GUID TypeLibrary = {0xF8A95503, 0x57E9, 0x4900, {0x88, 0x63, 0x87, 0xB1, 0x29, 0x92, 0xCF, 0xC6}};

std::wstring Text(const _bstr_t& bstr)
{
    return bstr.length() ? std::wstring(bstr, bstr.length()) : std::wstring();
}

std::wstring GetName(ITypeInfo* pInfo)
{
    _bstr_t name;
    pInfo->GetDocumentation(MEMBERID_NIL, name.GetAddress(), nullptr, nullptr, nullptr);
    return Text(name);
}

std::wstring GetDescription(ITypeInfo* pInfo)
{
    _bstr_t description;
    pInfo->GetDocumentation(MEMBERID_NIL, nullptr, description.GetAddress(), nullptr, nullptr);
    return Text(description);
}

/// A copy of a type's attributes; what it points to is not for use.
TYPEATTR GetAttributes(ITypeInfo* pInfo)
{
    TYPEATTR* pAttributes = nullptr;
    pInfo->GetTypeAttr(&pAttributes);
    const TYPEATTR attributes = *pAttributes;
    pInfo->ReleaseTypeAttr(pAttributes);
    return attributes;
}

/// The methods of a dual interface as its vtable has them, those of its base left out.
ComPtr<ITypeInfo> GetVtableView(ITypeInfo* pInfo)
{
    constexpr UINT nPartner = static_cast<UINT>(-1);
    HREFTYPE hType = 0;
    ComPtr<ITypeInfo> spView;
    if (SUCCEEDED(pInfo->GetRefTypeOfImplType(nPartner, &hType)))
        pInfo->GetRefTypeInfo(hType, &spView);
    return spView;
}

/// The names of a method and its parameters.
std::vector<std::wstring> GetNames(ITypeInfo* pInfo, MEMBERID nMember)
{
    BSTR names[8] = {};
    UINT nNames = 0;
    pInfo->GetNames(nMember, names, ARRAYSIZE(names), &nNames);
    std::vector<std::wstring> texts;
    for (const BSTR bstrName : std::span(names, nNames))
        texts.push_back(Text(_bstr_t(bstrName, false)));
    return texts;
}

/// The names of a vtable's method and its parameters, with its slot in front.
std::vector<std::wstring> DescribeMethod(ITypeInfo* pInfo, UINT nIndex)
{
    FUNCDESC* pFunction = nullptr;
    if (FAILED(pInfo->GetFuncDesc(nIndex, &pFunction)))
        return {};
    std::vector<std::wstring> description = GetNames(pInfo, pFunction->memid);
    description.insert(description.begin(), std::to_wstring(pFunction->oVft / sizeof(void*)));
    pInfo->ReleaseFuncDesc(pFunction);
    return description;
}

class EmbeddedTypeLibrary : public testing::Test
{
protected:
    EmbeddedTypeLibrary()
    {
        OleInitialize(nullptr);
        // The number behind the path is the resource's.
        LoadTypeLibEx((GetShippedFile(L"Trelvix.x64.dll").wstring() + L"\\1").c_str(), REGKIND_NONE, &m_spLibrary);
    }
    ~EmbeddedTypeLibrary() override
    {
        m_spLibrary.Reset();
        OleUninitialize();
    }

    ComPtr<ITypeInfo> GetType(REFGUID guid) const
    {
        ComPtr<ITypeInfo> spInfo;
        m_spLibrary->GetTypeInfoOfGuid(guid, &spInfo);
        return spInfo;
    }

    /// The interface that a coclass has by default, and the only one.
    ComPtr<ITypeInfo> GetDefaultInterface(REFGUID guid) const
    {
        const ComPtr<ITypeInfo> spClass = GetType(guid);
        HREFTYPE hType = 0;
        ComPtr<ITypeInfo> spInterface;
        if (GetAttributes(spClass.Get()).cImplTypes == 1 && SUCCEEDED(spClass->GetRefTypeOfImplType(0, &hType)))
            spClass->GetRefTypeInfo(hType, &spInterface);
        return spInterface;
    }

    ComPtr<ITypeLib> m_spLibrary;
};
} // namespace

TEST_F(EmbeddedTypeLibrary, HasItsNameVersionAndIdentifier)
{
    ASSERT_NE(nullptr, m_spLibrary);
    TLIBATTR* pAttributes = nullptr;
    m_spLibrary->GetLibAttr(&pAttributes);
    EXPECT_EQ(TypeLibrary, pAttributes->guid);
    EXPECT_EQ(1, pAttributes->wMajorVerNum);
    EXPECT_EQ(0, pAttributes->wMinorVerNum);
    m_spLibrary->ReleaseTLibAttr(pAttributes);
    _bstr_t name;
    _bstr_t description;
    m_spLibrary->GetDocumentation(MEMBERID_NIL, name.GetAddress(), description.GetAddress(), nullptr, nullptr);
    EXPECT_EQ(L"TRELVIXLib", Text(name));
    EXPECT_EQ(L"Trelvix 1.0 Type Library", Text(description));
    EXPECT_EQ(TypeLibrary, LIBID_TRELVIXLib);
}

TEST_F(EmbeddedTypeLibrary, HasTheClassOfTheBand)
{
    const ComPtr<ITypeInfo> spClass = GetType(BandClass);
    ASSERT_NE(nullptr, spClass);
    EXPECT_EQ(TKIND_COCLASS, GetAttributes(spClass.Get()).typekind);
    EXPECT_EQ(L"ATLTrelvix", GetName(spClass.Get()));
    EXPECT_EQ(BandInterface, GetAttributes(GetDefaultInterface(BandClass).Get()).guid);
}

TEST_F(EmbeddedTypeLibrary, HasTheClassOfTheHandler)
{
    const ComPtr<ITypeInfo> spClass = GetType(HandlerClass);
    ASSERT_NE(nullptr, spClass);
    EXPECT_EQ(TKIND_COCLASS, GetAttributes(spClass.Get()).typekind);
    EXPECT_EQ(L"TrelvixMSHTMLUIHandler", GetName(spClass.Get()));
    EXPECT_EQ(L"TrelvixMSHTMLUIHandler Class", GetDescription(spClass.Get()));
    EXPECT_EQ(HandlerInterface, GetAttributes(GetDefaultInterface(HandlerClass).Get()).guid);
}

TEST_F(EmbeddedTypeLibrary, HasADualInterfaceOfTheBandWithoutMembers)
{
    const ComPtr<ITypeInfo> spInfo = GetType(BandInterface);
    ASSERT_NE(nullptr, spInfo);
    EXPECT_EQ(L"IATLTrelvix", GetName(spInfo.Get()));
    EXPECT_EQ(L"IATLTrelvix Interface", GetDescription(spInfo.Get()));
    EXPECT_TRUE(GetAttributes(spInfo.Get()).wTypeFlags & TYPEFLAG_FDUAL);
    EXPECT_EQ(0, GetAttributes(GetVtableView(spInfo.Get()).Get()).cFuncs);
}

TEST_F(EmbeddedTypeLibrary, HasADualInterfaceOfTheHandlerWithThreeMembersInTheirOrder)
{
    const ComPtr<ITypeInfo> spInfo = GetType(HandlerInterface);
    ASSERT_NE(nullptr, spInfo);
    EXPECT_EQ(L"ITrelvixMSHTMLUIHandler", GetName(spInfo.Get()));
    EXPECT_TRUE(GetAttributes(spInfo.Get()).wTypeFlags & TYPEFLAG_FDUAL);
    const ComPtr<ITypeInfo> spVtable = GetVtableView(spInfo.Get());
    ASSERT_EQ(3, GetAttributes(spVtable.Get()).cFuncs);
    using Names = std::vector<std::wstring>;
    EXPECT_EQ((Names {L"7", L"SetOleClientSite", L"pClientSite"}), DescribeMethod(spVtable.Get(), 0));
    EXPECT_EQ((Names {L"8", L"SetToolbarWindow", L"pTrelvixWindow"}), DescribeMethod(spVtable.Get(), 1));
    EXPECT_EQ((Names {L"9", L"ClearToolbarWindow"}), DescribeMethod(spVtable.Get(), 2));
}
