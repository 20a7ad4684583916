#include "bench/com/Document.h"
#include "bench/com/EnumUnknown.h"
#include "bench/com/WebBrowser.h"
#include "framework/ComBoundary.h"

using Microsoft::WRL::ComPtr;

STDMETHODIMP CDocument::EnumObjects(DWORD dwFlags, IEnumUnknown** ppEnum)
{
    if (ppEnum == nullptr)
        return E_POINTER;
    *ppEnum = nullptr;
    return ComBoundary([&]() -> HRESULT {
        CEnumUnknown::Objects objects;
        if (dwFlags & OLECONTF_EMBEDDINGS)
        {
            const auto embeddings = Ask("embeddings");
            if (!embeddings)
                return IsOnShow() ? E_FAIL : RPC_E_DISCONNECTED;
            for (const Json& embedding : *embeddings)
                if (ComPtr<IUnknown> spObject = GetEmbeddedObject(embedding))
                    objects.push_back(std::move(spObject));
        }
        return MakeObject<CEnumUnknown>(std::move(objects)).CopyTo(ppEnum);
    });
}

ComPtr<IUnknown> CDocument::GetEmbeddedObject(const Json& embedding)
{
    if (!GetFlag(embedding, "isFrame"))
        return nullptr;
    const std::string frameId = GetFrameOfElement(GetNumber(embedding, "element", 0));
    return m_pBrowser ? m_pBrowser->GetFrameBrowser(frameId) : nullptr;
}

std::string CDocument::GetFrameOfElement(int nElement)
{
    const auto known = m_frameIds.find(nElement);
    if (known != m_frameIds.end() && m_pBrowser->GetPage().GetFrames().Find(known->second) != nullptr)
        return known->second;
    const std::string frameId = m_pBrowser->GetPage().GetFrameOfElement(m_frameId, nElement);
    m_frameIds[nElement] = frameId;
    return frameId;
}
