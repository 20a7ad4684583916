#include "framework/ComObject.h"

#include "framework/ComModule.h"

#include <windows.h>
#include <gtest/gtest.h>
#include <ocidl.h>
#include <wrl/client.h>

#include <cstddef>
#include <new>

using Microsoft::WRL::ComPtr;

namespace
{
int g_nEnds = 0;

/// A class with two interfaces, one of them derived, in a table of a chosen order.
class CSample : public CComObjectRoot, public IPersistStream, public IObjectWithSite
{
    BEGIN_COM_MAP(CSample)
        COM_INTERFACE_ENTRY(IObjectWithSite)
        COM_INTERFACE_ENTRY(IPersist)
        COM_INTERFACE_ENTRY(IPersistStream)
    END_COM_MAP()

public:
    STDMETHODIMP GetClassID(CLSID*) override { return E_NOTIMPL; }
    STDMETHODIMP IsDirty() override { return S_FALSE; }
    STDMETHODIMP Load(IStream*) override { return E_NOTIMPL; }
    STDMETHODIMP Save(IStream*, BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP GetSizeMax(ULARGE_INTEGER*) override { return E_NOTIMPL; }
    STDMETHODIMP SetSite(IUnknown*) override { return S_OK; }
    STDMETHODIMP GetSite(REFIID, void** ppv) override
    {
        *ppv = nullptr;
        return E_FAIL;
    }

protected:
    ~CSample() { ++g_nEnds; }
};

/// A class for which there is never room.
class CTooLarge : public CSample
{
public:
    static void* operator new(std::size_t, const std::nothrow_t&) noexcept { return nullptr; }
    static void operator delete(void*) {}

protected:
    ~CTooLarge() = default;
};

/// The outer object of an aggregate, with no interface of its own.
class COuter : public IUnknown
{
public:
    STDMETHODIMP QueryInterface(REFIID iid, void** ppv) override
    {
        if (m_spInner && !IsEqualIID(iid, IID_IUnknown))
            return m_spInner->QueryInterface(iid, ppv);
        *ppv = static_cast<IUnknown*>(this);
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++m_nReferences; }
    STDMETHODIMP_(ULONG) Release() override { return --m_nReferences; }

    ULONG m_nReferences = 1;
    ComPtr<IUnknown> m_spInner;
};

class ComObject : public testing::Test
{
protected:
    void SetUp() override { g_nEnds = 0; }
    void TearDown() override { EXPECT_EQ(0, m_module.GetLockCount()) << "no object is left"; }

    static ComPtr<IUnknown> Create()
    {
        ComPtr<IUnknown> spObject;
        EXPECT_EQ(S_OK, CreateComObject<CSample>(nullptr, IID_PPV_ARGS(&spObject)));
        return spObject;
    }

    CComModule m_module;
};
} // namespace

TEST_F(ComObject, AnswersEachInterfaceOfItsTable)
{
    const ComPtr<IUnknown> spObject = Create();
    for (const IID* pIid : {&IID_IObjectWithSite, &IID_IPersist, &IID_IPersistStream})
    {
        ComPtr<IUnknown> spInterface;
        EXPECT_EQ(S_OK, spObject->QueryInterface(*pIid, reinterpret_cast<void**>(spInterface.GetAddressOf())));
        EXPECT_NE(nullptr, spInterface);
    }
}

TEST_F(ComObject, HasTheFirstRowOfItsTableAsItsIdentity)
{
    const ComPtr<IUnknown> spObject = Create();
    ComPtr<IObjectWithSite> spFirst;
    ComPtr<IPersistStream> spLast;
    ComPtr<IUnknown> spIdentity;
    ASSERT_EQ(S_OK, spObject.As(&spFirst));
    ASSERT_EQ(S_OK, spObject.As(&spLast));
    ASSERT_EQ(S_OK, spLast.As(&spIdentity));
    EXPECT_EQ(static_cast<IUnknown*>(spFirst.Get()), spIdentity.Get());
    EXPECT_EQ(spObject.Get(), spIdentity.Get());
}

TEST_F(ComObject, KeepsTheOrderOfItsTable)
{
    const CComInterfaceEntry* pEntries = CSample::GetEntries();
    EXPECT_EQ(IID_IObjectWithSite, *pEntries[0].piid);
    EXPECT_EQ(IID_IPersist, *pEntries[1].piid);
    EXPECT_EQ(IID_IPersistStream, *pEntries[2].piid);
    EXPECT_EQ(nullptr, pEntries[3].piid);
    EXPECT_EQ(pEntries[1].offset, pEntries[2].offset) << "one base gives both";
    EXPECT_NE(pEntries[0].offset, pEntries[1].offset);
}

TEST_F(ComObject, ClearsTheOutPointerOfWhatItLacks)
{
    const ComPtr<IUnknown> spObject = Create();
    void* pv = &pv;
    EXPECT_EQ(E_NOINTERFACE, spObject->QueryInterface(IID_IDispatch, &pv));
    EXPECT_EQ(nullptr, pv);
    EXPECT_EQ(E_POINTER, spObject->QueryInterface(IID_IPersist, nullptr));
}

TEST_F(ComObject, CountsItsReferencesAndLeavesWithTheLast)
{
    ComPtr<IUnknown> spObject = Create();
    EXPECT_EQ(2u, spObject->AddRef());
    EXPECT_EQ(1u, spObject->Release());
    EXPECT_EQ(0, g_nEnds);
    EXPECT_EQ(0u, spObject.Detach()->Release());
    EXPECT_EQ(1, g_nEnds);
}

TEST_F(ComObject, KeepsTheModuleLoadedWhileItLives)
{
    ComPtr<IUnknown> spObject = Create();
    EXPECT_EQ(1, m_module.GetLockCount());
    const ComPtr<IUnknown> spSecond = Create();
    EXPECT_EQ(2, m_module.GetLockCount());
    spObject.Reset();
    EXPECT_EQ(1, m_module.GetLockCount());
}

TEST_F(ComObject, LeavesNothingWhenItLacksTheInterfaceThatWasAskedFor)
{
    void* pv = &pv;
    EXPECT_EQ(E_NOINTERFACE, CreateComObject<CSample>(nullptr, IID_IDispatch, &pv));
    EXPECT_EQ(nullptr, pv);
    EXPECT_EQ(1, g_nEnds);
}

TEST_F(ComObject, IsNotCreatedWhenMemoryIsShort)
{
    void* pv = &pv;
    EXPECT_EQ(E_OUTOFMEMORY, CreateComObject<CTooLarge>(nullptr, IID_IUnknown, &pv));
    EXPECT_EQ(nullptr, pv);
}

TEST_F(ComObject, InAnAggregateHasTheIdentityOfTheOuterObject)
{
    COuter outer;
    ASSERT_EQ(S_OK, CreateComObject<CSample>(&outer, IID_PPV_ARGS(&outer.m_spInner)));
    ComPtr<IPersistStream> spInterface;
    ASSERT_EQ(S_OK, outer.QueryInterface(IID_PPV_ARGS(&spInterface)));
    ComPtr<IUnknown> spIdentity;
    ASSERT_EQ(S_OK, spInterface.As(&spIdentity));
    EXPECT_EQ(&outer, spIdentity.Get());
}

TEST_F(ComObject, InAnAggregateCountsReferencesOnTheOuterObject)
{
    COuter outer;
    ASSERT_EQ(S_OK, CreateComObject<CSample>(&outer, IID_PPV_ARGS(&outer.m_spInner)));
    EXPECT_EQ(1u, outer.m_nReferences) << "the inner object doesn't hold the outer one";
    ComPtr<IPersistStream> spInterface;
    ASSERT_EQ(S_OK, outer.QueryInterface(IID_PPV_ARGS(&spInterface)));
    EXPECT_EQ(2u, outer.m_nReferences);
    spInterface.Reset();
    EXPECT_EQ(1u, outer.m_nReferences);
    EXPECT_EQ(1, m_module.GetLockCount());
    outer.m_spInner.Reset();
    EXPECT_EQ(1, g_nEnds);
}

TEST_F(ComObject, InAnAggregateAnswersForItselfThroughItsOwnUnknown)
{
    COuter outer;
    ASSERT_EQ(S_OK, CreateComObject<CSample>(&outer, IID_PPV_ARGS(&outer.m_spInner)));
    void* pv = &pv;
    EXPECT_EQ(E_NOINTERFACE, outer.m_spInner->QueryInterface(IID_IDispatch, &pv));
    EXPECT_EQ(nullptr, pv);
    EXPECT_EQ(E_POINTER, outer.m_spInner->QueryInterface(IID_IUnknown, nullptr));
    ComPtr<IUnknown> spOwn;
    ASSERT_EQ(S_OK, outer.m_spInner.As(&spOwn));
    EXPECT_EQ(outer.m_spInner.Get(), spOwn.Get());
}

TEST_F(ComObject, IsAggregatedOnlyForItsUnknown)
{
    COuter outer;
    void* pv = nullptr;
    EXPECT_EQ(CLASS_E_NOAGGREGATION, CreateComObject<CSample>(&outer, IID_IPersist, &pv));
    EXPECT_EQ(nullptr, pv);
}
