#pragma once

#include "framework/ComModule.h"

#include <windows.h>
#include <unknwn.h>

#include <new>

/// A row of an interface table: the identifier and the offset of the interface in the object. The first row also
/// gives the object's identity. A null identifier closes the table.
struct CComInterfaceEntry
{
    const IID* piid;
    DWORD_PTR offset;
};

/// Root of the COM classes: counts the references and answers QueryInterface from the class's interface table, in the
/// table's order. A class derives from it and its interfaces; CComObject or CComAggObject around it makes it creatable.
class CComObjectRoot
{
public:
    CComObjectRoot() = default;
    CComObjectRoot(const CComObjectRoot&) = delete;
    CComObjectRoot& operator=(const CComObjectRoot&) = delete;

protected:
    ~CComObjectRoot() = default;

    ULONG InternalAddRef() { return InterlockedIncrement(&m_nReferences); }
    ULONG InternalRelease() { return InterlockedDecrement(&m_nReferences); }

    /// `pThis` is the object that the offsets of the table count from. Clears the out pointer on failure.
    static HRESULT InternalQueryInterface(void* pThis, const CComInterfaceEntry* pEntries, REFIID iid, void** ppv);

private:
    LONG m_nReferences = 0;
};

/// Offset of a base interface inside a class, for interface tables. `Via` names the base in which an interface stands
/// that the class has more than once.
template <class Class, class Interface, class Via = Interface>
DWORD_PTR GetInterfaceOffset()
{
    constexpr DWORD_PTR probe = 0x10000; // any address but null, which a cast would keep
    return reinterpret_cast<DWORD_PTR>(static_cast<Interface*>(static_cast<Via*>(reinterpret_cast<Class*>(probe)))) -
           probe;
}

/// In the class: opens its interface table.
#define BEGIN_COM_MAP(theClass)                                                                                        \
public:                                                                                                                \
    static const CComInterfaceEntry* GetEntries()                                                                      \
    {                                                                                                                  \
        using ThisClass = theClass;                                                                                    \
        static const CComInterfaceEntry entries[] = {
#define COM_INTERFACE_ENTRY(Interface) {&__uuidof(Interface), GetInterfaceOffset<ThisClass, Interface>()},
#define COM_INTERFACE_ENTRY2(Interface, Via) {&__uuidof(Interface), GetInterfaceOffset<ThisClass, Interface, Via>()},
#define END_COM_MAP()                                                                                                  \
    {                                                                                                                  \
        nullptr, 0                                                                                                     \
    }                                                                                                                  \
    }                                                                                                                  \
    ;                                                                                                                  \
    return entries;                                                                                                    \
    }

/// An object of the class with an identity of its own. While it lives the module stays loaded.
template <class Base>
class CComObject final : public Base
{
public:
    CComObject() { GetModule().Lock(); }
    ~CComObject() { GetModule().Unlock(); }

    STDMETHODIMP QueryInterface(REFIID iid, void** ppv) override
    {
        return Base::InternalQueryInterface(static_cast<Base*>(this), Base::GetEntries(), iid, ppv);
    }
    STDMETHODIMP_(ULONG) AddRef() override { return this->InternalAddRef(); }
    STDMETHODIMP_(ULONG) Release() override
    {
        const ULONG nReferences = this->InternalRelease();
        if (nReferences == 0)
            delete this;
        return nReferences;
    }

    /// Creates the object and asks it for an interface. Clears the out pointer on failure.
    static HRESULT CreateInstance(REFIID iid, void** ppv);

private:
    static CComModule& GetModule() { return *CComModule::GetModule(); }
};

/// The class as the inner object of an aggregate: its identity is the outer object's.
template <class Base>
class CComContainedObject final : public Base
{
public:
    explicit CComContainedObject(IUnknown* pOuter) : m_pOuter(pOuter) {}
    ~CComContainedObject() = default;

    STDMETHODIMP QueryInterface(REFIID iid, void** ppv) override { return m_pOuter->QueryInterface(iid, ppv); }
    STDMETHODIMP_(ULONG) AddRef() override { return m_pOuter->AddRef(); }
    STDMETHODIMP_(ULONG) Release() override { return m_pOuter->Release(); }

    /// The object's own answer, which the outer object asks for through CComAggObject.
    HRESULT QueryOwnInterface(REFIID iid, void** ppv)
    {
        return Base::InternalQueryInterface(static_cast<Base*>(this), Base::GetEntries(), iid, ppv);
    }

private:
    IUnknown* m_pOuter; ///< outlives this object and is not counted, as the rules of aggregation ask
};

/// The inner IUnknown that the outer object of an aggregate holds.
template <class Base>
class CComAggObject final : public IUnknown, private CComObjectRoot
{
public:
    explicit CComAggObject(IUnknown* pOuter) : m_contained(pOuter) { CComModule::GetModule()->Lock(); }
    ~CComAggObject() { CComModule::GetModule()->Unlock(); }

    STDMETHODIMP QueryInterface(REFIID iid, void** ppv) override
    {
        if (ppv == nullptr)
            return E_POINTER;
        if (!IsEqualIID(iid, IID_IUnknown))
            return m_contained.QueryOwnInterface(iid, ppv);
        *ppv = static_cast<IUnknown*>(this);
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return InternalAddRef(); }
    STDMETHODIMP_(ULONG) Release() override
    {
        const ULONG nReferences = InternalRelease();
        if (nReferences == 0)
            delete this;
        return nReferences;
    }

    /// Creates the inner object and gives its own IUnknown, the only interface that an aggregate may ask for.
    static HRESULT CreateInstance(IUnknown* pOuter, REFIID iid, void** ppv);

private:
    CComContainedObject<Base> m_contained;
};

namespace AfxCom
{
/// Hands out a new object that nobody holds yet, which goes again when it lacks the interface.
template <class Object>
HRESULT FinishCreation(Object* pObject, REFIID iid, void** ppv)
{
    if (pObject == nullptr)
        return E_OUTOFMEMORY;
    pObject->AddRef();
    const HRESULT hr = pObject->QueryInterface(iid, ppv);
    pObject->Release();
    return hr;
}
} // namespace AfxCom

template <class Base>
HRESULT CComObject<Base>::CreateInstance(REFIID iid, void** ppv)
{
    *ppv = nullptr;
    return AfxCom::FinishCreation(new (std::nothrow) CComObject<Base>, iid, ppv);
}

template <class Base>
HRESULT CComAggObject<Base>::CreateInstance(IUnknown* pOuter, REFIID iid, void** ppv)
{
    *ppv = nullptr;
    return AfxCom::FinishCreation(new (std::nothrow) CComAggObject<Base>(pOuter), iid, ppv);
}

/// Creates a class plainly or aggregated, as class factories do. An aggregate may only ask for IUnknown.
template <class Base>
HRESULT CreateComObject(IUnknown* pOuter, REFIID iid, void** ppv)
{
    if (pOuter == nullptr)
        return CComObject<Base>::CreateInstance(iid, ppv);
    if (!IsEqualIID(iid, IID_IUnknown))
        return CLASS_E_NOAGGREGATION;
    return CComAggObject<Base>::CreateInstance(pOuter, iid, ppv);
}
