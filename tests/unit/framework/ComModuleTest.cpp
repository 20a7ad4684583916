#include "framework/ComModule.h"

#include "framework/ComObject.h"
#include "framework/Wnd.h"
#include "tests/fakes/TestWindow.h"

#include <windows.h>
#include <gtest/gtest.h>
#include <ocidl.h>
#include <wrl/client.h>

#include <new>

using Microsoft::WRL::ComPtr;

namespace
{
constexpr CLSID FirstClass = {0x1d5d7a10, 0x2f60, 0x4c6c, {0x9a, 0x21, 0x55, 0x8a, 0x61, 0x0f, 0x3c, 0x01}};
constexpr CLSID SecondClass = {0x1d5d7a10, 0x2f60, 0x4c6c, {0x9a, 0x21, 0x55, 0x8a, 0x61, 0x0f, 0x3c, 0x02}};
constexpr CLSID UnknownClass = {0x1d5d7a10, 0x2f60, 0x4c6c, {0x9a, 0x21, 0x55, 0x8a, 0x61, 0x0f, 0x3c, 0x03}};

class CSample : public CComObjectRoot, public IPersist
{
    BEGIN_COM_MAP(CSample)
        COM_INTERFACE_ENTRY(IPersist)
    END_COM_MAP()

public:
    STDMETHODIMP GetClassID(CLSID* pClassID) override
    {
        *pClassID = FirstClass;
        return S_OK;
    }

protected:
    ~CSample() = default;
};

HRESULT ThrowBadAlloc(IUnknown*, REFIID, void**)
{
    throw std::bad_alloc();
}

const CComClassEntry Classes[] = {
    {&FirstClass, 0, &CreateComObject<CSample>, nullptr},
    {&SecondClass, 0, &ThrowBadAlloc, nullptr},
};

class ComModule : public testing::Test
{
protected:
    void SetUp() override { m_module.Init(Classes, GUID_NULL); }
    void TearDown() override { EXPECT_EQ(0, m_module.GetLockCount()); }

    ComPtr<IClassFactory> GetFactory(REFCLSID clsid)
    {
        ComPtr<IClassFactory> spFactory;
        EXPECT_EQ(S_OK, m_module.GetClassObject(clsid, IID_PPV_ARGS(&spFactory)));
        return spFactory;
    }

    CComModule m_module;
};
} // namespace

TEST_F(ComModule, IsTheOneOfItsBinary)
{
    EXPECT_EQ(&m_module, CComModule::GetModule());
}

TEST_F(ComModule, GivesTheFactoryOfEachClassInItsTable)
{
    EXPECT_NE(nullptr, GetFactory(FirstClass));
    EXPECT_NE(nullptr, GetFactory(SecondClass));
}

TEST_F(ComModule, HasNoFactoryForAnotherClass)
{
    void* pv = &pv;
    EXPECT_EQ(CLASS_E_CLASSNOTAVAILABLE, m_module.GetClassObject(UnknownClass, IID_IClassFactory, &pv));
    EXPECT_EQ(nullptr, pv);
}

TEST_F(ComModule, HasNoFactoryBeforeItsStartAndAfterItsEnd)
{
    m_module.Term();
    void* pv = &pv;
    EXPECT_EQ(CLASS_E_CLASSNOTAVAILABLE, m_module.GetClassObject(FirstClass, IID_IClassFactory, &pv));
    EXPECT_EQ(nullptr, pv);
}

TEST_F(ComModule, RefusesAFactoryWithoutAPlaceOrByAnotherInterface)
{
    void* pv = &pv;
    EXPECT_EQ(E_POINTER, m_module.GetClassObject(FirstClass, IID_IClassFactory, nullptr));
    EXPECT_EQ(E_NOINTERFACE, m_module.GetClassObject(FirstClass, IID_IPersist, &pv));
    EXPECT_EQ(nullptr, pv);
}

TEST_F(ComModule, CreatesObjectsThroughTheFactory)
{
    ComPtr<IPersist> spObject;
    ASSERT_EQ(S_OK, GetFactory(FirstClass)->CreateInstance(nullptr, IID_PPV_ARGS(&spObject)));
    CLSID clsid = {};
    EXPECT_EQ(S_OK, spObject->GetClassID(&clsid));
    EXPECT_EQ(FirstClass, clsid);
    EXPECT_EQ(1, m_module.GetLockCount());
}

TEST_F(ComModule, AggregatesThroughTheFactory)
{
    const ComPtr<IClassFactory> spOuter = GetFactory(FirstClass); // any object will do
    ComPtr<IUnknown> spInner;
    EXPECT_EQ(S_OK, spOuter->CreateInstance(spOuter.Get(), IID_PPV_ARGS(&spInner)));
    void* pv = &pv;
    EXPECT_EQ(CLASS_E_NOAGGREGATION, spOuter->CreateInstance(spOuter.Get(), IID_IPersist, &pv));
    EXPECT_EQ(nullptr, pv);
}

TEST_F(ComModule, LetsNoExceptionOutOfAFactory)
{
    void* pv = &pv;
    EXPECT_EQ(E_OUTOFMEMORY, GetFactory(SecondClass)->CreateInstance(nullptr, IID_IUnknown, &pv));
    EXPECT_EQ(nullptr, pv);
    EXPECT_EQ(E_POINTER, GetFactory(SecondClass)->CreateInstance(nullptr, IID_IUnknown, nullptr));
}

TEST_F(ComModule, StaysLoadedWhileAServerLockOrAFactoryStands)
{
    ComPtr<IClassFactory> spFactory = GetFactory(FirstClass);
    EXPECT_EQ(1, m_module.GetLockCount());
    EXPECT_EQ(S_OK, spFactory->LockServer(TRUE));
    EXPECT_EQ(2, m_module.GetLockCount());
    EXPECT_EQ(S_OK, spFactory->LockServer(FALSE));
    spFactory.Reset();
    EXPECT_EQ(0, m_module.GetLockCount());
}

TEST_F(ComModule, CanBeUnloadedOnlyWhenNoWindowIsAttached)
{
    EXPECT_EQ(S_OK, AfxDllCanUnloadNow());
    const CTestWindow window;
    CWnd wnd;
    ASSERT_TRUE(wnd.SubclassWindow(window));
    EXPECT_EQ(S_FALSE, AfxDllCanUnloadNow());
    wnd.UnsubclassWindow();
    EXPECT_EQ(S_OK, AfxDllCanUnloadNow());
}

TEST_F(ComModule, HasNoTypeInformationWithoutATypeLibrary)
{
    ComPtr<ITypeInfo> spTypeInfo;
    EXPECT_TRUE(FAILED(CComModule::LoadTypeInfo(IID_IPersist, &spTypeInfo)));
    EXPECT_EQ(nullptr, spTypeInfo);
}
