#include "bench/com/EnumUnknown.h"

#include "framework/ComBoundary.h"

#include <algorithm>

STDMETHODIMP CEnumUnknown::Next(ULONG celt, IUnknown** ppObjects, ULONG* pceltFetched)
{
    if (ppObjects == nullptr || (pceltFetched == nullptr && celt != 1))
        return E_POINTER;
    ULONG nFetched = 0;
    for (; nFetched < celt && m_nNext < m_objects.size(); ++nFetched)
        m_objects[m_nNext++].CopyTo(&ppObjects[nFetched]);
    std::fill(ppObjects + nFetched, ppObjects + celt, nullptr);
    if (pceltFetched != nullptr)
        *pceltFetched = nFetched;
    return nFetched == celt ? S_OK : S_FALSE;
}

STDMETHODIMP CEnumUnknown::Skip(ULONG celt)
{
    const size_t nSkipped = std::min<size_t>(celt, m_objects.size() - m_nNext);
    m_nNext += nSkipped;
    return nSkipped == celt ? S_OK : S_FALSE;
}

STDMETHODIMP CEnumUnknown::Reset()
{
    m_nNext = 0;
    return S_OK;
}

STDMETHODIMP CEnumUnknown::Clone(IEnumUnknown** ppEnum)
{
    if (ppEnum == nullptr)
        return E_POINTER;
    *ppEnum = nullptr;
    return ComBoundary([&] { return MakeObject<CEnumUnknown>(m_objects, m_nNext).CopyTo(ppEnum); });
}
