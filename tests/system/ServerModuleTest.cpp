// The exports of the library as it ships, and the life of what it makes.

#include "tests/system/ServerModule.h"

#include "resources/Trelvix.h"
#include "tests/fakes/FakeObject.h"
#include "tests/fakes/LivingFakes.h"

#include <windows.h>
#include <docobj.h>
#include <gmock/gmock.h>
#include <mshtmhst.h>
#include <shlobj.h>
#include <wrl/client.h>

#include <span>
#include <string>
#include <vector>

using Microsoft::WRL::ComPtr;
using testing::ElementsAre;

namespace
{
constexpr CLSID UnknownClass = {0x12345678, 0x1234, 0x1234, {1, 2, 3, 4, 5, 6, 7, 8}};

class ServerModule : public testing::Test
{
protected:
    ServerModule() { OleInitialize(nullptr); }
    ~ServerModule() override { OleUninitialize(); }

    ComPtr<IUnknown> Create(REFCLSID clsid, IUnknown* pOuter = nullptr) const
    {
        ComPtr<IUnknown> spObject;
        m_module.CreateInstance(clsid, pOuter, IID_PPV_ARGS(&spObject));
        return spObject;
    }

    CServerModule m_module;
};

/// An outer object that has no interface of its own.
class COuter : public CFakeObject<COuter, IOleWindow>
{
    BEGIN_COM_MAP(COuter)
        COM_INTERFACE_ENTRY(IOleWindow)
    END_COM_MAP()

public:
    COuter() : CFakeObject("Outer") {}

    STDMETHODIMP GetWindow(HWND*) override { return E_NOTIMPL; }
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
};

IUnknown* AsUnknown(const ComPtr<COuter>& spOuter)
{
    return static_cast<IOleWindow*>(spOuter.Get());
}

std::vector<std::string> ReadExportedNames(HMODULE hModule)
{
    const auto* pBase = reinterpret_cast<const BYTE*>(hModule);
    const auto& dos = *reinterpret_cast<const IMAGE_DOS_HEADER*>(pBase);
    const auto& header = *reinterpret_cast<const IMAGE_NT_HEADERS*>(pBase + dos.e_lfanew);
    const DWORD nOffset = header.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT].VirtualAddress;
    const auto& exports = *reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(pBase + nOffset);
    std::vector<std::string> names(exports.NumberOfFunctions - exports.NumberOfNames, "(without a name)");
    for (const DWORD nName :
         std::span(reinterpret_cast<const DWORD*>(pBase + exports.AddressOfNames), exports.NumberOfNames))
        names.push_back(reinterpret_cast<const char*>(pBase + nName));
    return names;
}
} // namespace

TEST_F(ServerModule, ExportsTheFourFunctionsOfAServerAndNothingElse)
{
    EXPECT_THAT(ReadExportedNames(m_module.GetHandle()),
                ElementsAre("DllCanUnloadNow", "DllGetClassObject", "DllRegisterServer", "DllUnregisterServer"));
}

TEST_F(ServerModule, HasAFactoryForEachOfItsTwoClasses)
{
    for (const CLSID& clsid : {CLSID_ATLTrelvix, CLSID_TrelvixMSHTMLUIHandler})
    {
        ComPtr<IClassFactory> spFactory;
        EXPECT_EQ(S_OK, m_module.GetClassObject(clsid, IID_PPV_ARGS(&spFactory)));
        EXPECT_NE(nullptr, spFactory);
    }
}

TEST_F(ServerModule, HasNoFactoryForAnotherClass)
{
    void* pv = &pv;
    EXPECT_EQ(CLASS_E_CLASSNOTAVAILABLE, m_module.GetClassObject(UnknownClass, IID_IClassFactory, &pv));
    EXPECT_EQ(nullptr, pv);
}

TEST_F(ServerModule, AsksForAPlaceToPutTheFactory)
{
    EXPECT_EQ(E_POINTER, m_module.GetClassObject(CLSID_ATLTrelvix, IID_IClassFactory, nullptr));
}

TEST_F(ServerModule, GivesNoOtherInterfaceOfAFactory)
{
    void* pv = &pv;
    EXPECT_EQ(E_NOINTERFACE, m_module.GetClassObject(CLSID_ATLTrelvix, IID_IDeskBand, &pv));
    EXPECT_EQ(nullptr, pv);
    EXPECT_EQ(S_OK, m_module.CanUnloadNow());
}

TEST_F(ServerModule, MakesABandAndAHandler)
{
    ComPtr<IDeskBand> spBand;
    EXPECT_EQ(S_OK, m_module.CreateInstance(CLSID_ATLTrelvix, nullptr, IID_PPV_ARGS(&spBand)));
    ComPtr<IDocHostUIHandler> spHandler;
    EXPECT_EQ(S_OK, m_module.CreateInstance(CLSID_TrelvixMSHTMLUIHandler, nullptr, IID_PPV_ARGS(&spHandler)));
}

TEST_F(ServerModule, MakesNothingWithAnInterfaceThatTheClassLacks)
{
    void* pv = &pv;
    EXPECT_EQ(E_NOINTERFACE, m_module.CreateInstance(CLSID_ATLTrelvix, nullptr, IID_IOleCommandTarget, &pv));
    EXPECT_EQ(nullptr, pv);
    EXPECT_EQ(S_OK, m_module.CanUnloadNow());
}

TEST_F(ServerModule, MakesBothClassesAsPartOfAnAggregate)
{
    for (const CLSID& clsid : {CLSID_ATLTrelvix, CLSID_TrelvixMSHTMLUIHandler})
    {
        const ComPtr<COuter> spOuter = MakeFake<COuter>();
        const ComPtr<IUnknown> spInner = Create(clsid, AsUnknown(spOuter));
        ASSERT_NE(nullptr, spInner);
        ComPtr<IDispatch> spDispatch;
        ASSERT_EQ(S_OK, spInner.As(&spDispatch));
        ComPtr<IUnknown> spIdentity;
        EXPECT_EQ(S_OK, spDispatch.As(&spIdentity));
        EXPECT_EQ(AsUnknown(spOuter), spIdentity.Get());
    }
    EXPECT_EQ(0u, CLivingFakes::Get().GetCount());
}

TEST_F(ServerModule, GivesAnAggregateItsInnerUnknownOnly)
{
    const ComPtr<COuter> spOuter = MakeFake<COuter>();
    void* pv = &pv;
    EXPECT_EQ(CLASS_E_NOAGGREGATION, m_module.CreateInstance(CLSID_ATLTrelvix, AsUnknown(spOuter), IID_IDeskBand, &pv));
    EXPECT_EQ(nullptr, pv);
}

TEST_F(ServerModule, CanUnloadWhileNothingLives)
{
    EXPECT_EQ(S_OK, m_module.CanUnloadNow());
}

TEST_F(ServerModule, StaysWhileABandOrAHandlerLives)
{
    for (const CLSID& clsid : {CLSID_ATLTrelvix, CLSID_TrelvixMSHTMLUIHandler})
    {
        ComPtr<IUnknown> spObject = Create(clsid);
        EXPECT_EQ(S_FALSE, m_module.CanUnloadNow());
        spObject.Reset();
        EXPECT_EQ(S_OK, m_module.CanUnloadNow());
    }
}

TEST_F(ServerModule, StaysWhileAnAggregatedBandLives)
{
    const ComPtr<COuter> spOuter = MakeFake<COuter>();
    ComPtr<IUnknown> spInner = Create(CLSID_ATLTrelvix, AsUnknown(spOuter));
    EXPECT_EQ(S_FALSE, m_module.CanUnloadNow());
    spInner.Reset();
    EXPECT_EQ(S_OK, m_module.CanUnloadNow());
}

TEST_F(ServerModule, StaysWhileAFactoryHoldsItLocked)
{
    ComPtr<IClassFactory> spFactory;
    m_module.GetClassObject(CLSID_ATLTrelvix, IID_PPV_ARGS(&spFactory));
    spFactory->LockServer(TRUE);
    spFactory->LockServer(TRUE);
    spFactory->LockServer(FALSE);
    spFactory.Reset();
    EXPECT_EQ(S_FALSE, m_module.CanUnloadNow());
    m_module.GetClassObject(CLSID_ATLTrelvix, IID_PPV_ARGS(&spFactory));
    spFactory->LockServer(FALSE);
    spFactory.Reset();
    EXPECT_EQ(S_OK, m_module.CanUnloadNow());
}
