#include "tests/fakes/FakeDocument.h"

#include "tests/fakes/FakeEnumUnknown.h"

STDMETHODIMP CFakeDocument::EnumObjects(DWORD dwFlags, IEnumUnknown** ppEnum)
{
    return Call("EnumObjects", ppEnum, [&]() -> HRESULT {
        if (dwFlags != OLECONTF_EMBEDDINGS)
            return E_INVALIDARG;
        return MakeFake<CFakeEnumUnknown>(m_objects).CopyTo(ppEnum);
    });
}

STDMETHODIMP CFakeDocument::GetClientSite(IOleClientSite** ppSite)
{
    return Call("GetClientSite", ppSite, [&] { return m_spClientSite.CopyTo(ppSite); });
}

STDMETHODIMP CFakeDocument::SetUIHandler(IDocHostUIHandler* pHandler)
{
    return Call("SetUIHandler", [&] {
        m_spUIHandler = pHandler;
        return S_OK;
    });
}
