#pragma once

#include "framework/ComObject.h"

#include <windows.h>
#include <unknwn.h>
#include <wrl/client.h>

#include <utility>

/// Base of the bench browser's COM objects. `Derived` gives the interface table, `Bases` are its interfaces or their
/// E_NOTIMPL bases. MakeObject creates them; all of an object's life belongs to the thread of its page.
template <class Derived, class... Bases>
class CCountedObject : public CComObjectRoot, public Bases...
{
public:
    STDMETHODIMP QueryInterface(REFIID iid, void** ppv) override
    {
        return InternalQueryInterface(static_cast<Derived*>(this), Derived::GetEntries(), iid, ppv);
    }
    STDMETHODIMP_(ULONG) AddRef() override { return InternalAddRef(); }
    STDMETHODIMP_(ULONG) Release() override
    {
        const ULONG nReferences = InternalRelease();
        if (nReferences == 0)
            delete static_cast<Derived*>(this);
        return nReferences;
    }

protected:
    virtual ~CCountedObject() = default;
};

/// A new object with one reference.
template <class Object, class... Arguments>
Microsoft::WRL::ComPtr<Object> MakeObject(Arguments&&... arguments)
{
    return new Object(std::forward<Arguments>(arguments)...);
}
