#pragma once

#include <windows.h>
#include <unknwn.h>
#include <wrl/client.h>

/// The object's interface, owned; null when the object is null, lacks it or claims success without giving it.
template <class Interface>
Microsoft::WRL::ComPtr<Interface> QueryFor(IUnknown* pObject)
{
    Microsoft::WRL::ComPtr<Interface> spInterface;
    if (pObject == nullptr || FAILED(pObject->QueryInterface(IID_PPV_ARGS(&spInterface))))
        return nullptr;
    return spInterface;
}

/// Whether both are interfaces of one COM object, or both null. False when an object doesn't tell its identity.
inline bool IsSameObject(IUnknown* pLeft, IUnknown* pRight)
{
    if (pLeft == pRight)
        return true;
    const Microsoft::WRL::ComPtr<IUnknown> spLeft = QueryFor<IUnknown>(pLeft);
    return spLeft && spLeft.Get() == QueryFor<IUnknown>(pRight).Get();
}
