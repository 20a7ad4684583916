#pragma once

#include "framework/ComObject.h"
#include "tests/fakes/FakeCalls.h"
#include "tests/fakes/LivingFakes.h"

#include <windows.h>
#include <wrl/client.h>

#include <algorithm>
#include <utility>
#include <vector>

/// Base of the fakes: a COM object that logs every call by name, can lack an interface that its class has, fails on
/// demand and is watched for leaks. `Derived` gives the interface table, `Bases` are its interfaces or E_NOTIMPL bases.
template <class Derived, class... Bases>
class CFakeObject : public CComObjectRoot, public Bases...
{
public:
    STDMETHODIMP QueryInterface(REFIID iid, void** ppv) override
    {
        return Call("QueryInterface", ppv, [&]() -> HRESULT {
            if (std::find(m_lacking.begin(), m_lacking.end(), iid) != m_lacking.end())
                return E_NOINTERFACE;
            return InternalQueryInterface(static_cast<Derived*>(this), Derived::GetEntries(), iid, ppv);
        });
    }
    STDMETHODIMP_(ULONG) AddRef() override { return InternalAddRef(); }
    STDMETHODIMP_(ULONG) Release() override
    {
        const ULONG nReferences = InternalRelease();
        if (nReferences == 0)
            delete static_cast<Derived*>(this);
        return nReferences;
    }

    /// From now on the object doesn't have the interface.
    void Lack(REFIID iid) { m_lacking.push_back(iid); }

    ULONG GetReferences()
    {
        InternalAddRef();
        return InternalRelease();
    }

protected:
    /// The name, a literal, stands before the method's in the log.
    explicit CFakeObject(const char* pszName) : m_pszName(pszName) { CLivingFakes::Get().Add(this, pszName); }
    virtual ~CFakeObject() { CLivingFakes::Get().Remove(this); }

    /// Logs a call and does it, unless it is planned to fail.
    template <class Body>
    HRESULT Call(const char* pszMethod, Body body)
    {
        const auto planned = CFakeCalls::Get().Record(m_pszName, pszMethod);
        return planned ? *planned : body();
    }

    /// The same for a call with an out pointer, which is null unless the body sets it.
    template <class Out, class Body>
    HRESULT Call(const char* pszMethod, Out** ppOut, Body body)
    {
        if (ppOut == nullptr)
            return E_POINTER;
        *ppOut = nullptr;
        return Call(pszMethod, std::move(body));
    }

private:
    const char* m_pszName;
    std::vector<IID> m_lacking;
};

/// Makes a fake and owns the first reference to it.
template <class Fake, class... Arguments>
Microsoft::WRL::ComPtr<Fake> MakeFake(Arguments&&... arguments)
{
    return Microsoft::WRL::ComPtr<Fake>(new Fake(std::forward<Arguments>(arguments)...));
}
