#include "tests/fakes/FakeEnumUnknown.h"

STDMETHODIMP CFakeEnumUnknown::Next(ULONG, IUnknown** ppObject, ULONG* pnFetched)
{
    if (pnFetched != nullptr)
        *pnFetched = 0;
    return Call("Next", ppObject, [&]() -> HRESULT {
        if (m_nNext == m_objects.size())
            return S_FALSE;
        if (pnFetched != nullptr)
            *pnFetched = 1;
        return m_objects[m_nNext++].CopyTo(ppObject);
    });
}

STDMETHODIMP CFakeEnumUnknown::Skip(ULONG)
{
    return Call("Skip", [] { return E_NOTIMPL; });
}

STDMETHODIMP CFakeEnumUnknown::Reset()
{
    return Call("Reset", [&] {
        m_nNext = 0;
        return S_OK;
    });
}

STDMETHODIMP CFakeEnumUnknown::Clone(IEnumUnknown** ppEnum)
{
    return Call("Clone", ppEnum, [] { return E_NOTIMPL; });
}
