#include "bench/com/Document.h"
#include "bench/com/Element.h"
#include "bench/com/EnumUnknown.h"
#include "bench/com/WebBrowser.h"
#include "bench/com/Window.h"
#include "framework/ComBoundary.h"

using Microsoft::WRL::ComPtr;

STDMETHODIMP CDocument::EnumObjects(DWORD dwFlags, IEnumUnknown** ppEnum)
{
    if (ppEnum == nullptr)
        return E_POINTER;
    *ppEnum = nullptr;
    return ComBoundary([&] {
        CEnumUnknown::Objects objects;
        if (dwFlags & OLECONTF_EMBEDDINGS)
        {
            const auto embeddings = Ask("embeddings");
            if (!embeddings)
                return GetFailure();
            for (const Json& embedding : *embeddings)
                if (ComPtr<IUnknown> spObject = GetEmbeddedObject(embedding))
                    objects.push_back(std::move(spObject));
        }
        return MakeObject<CEnumUnknown>(std::move(objects)).CopyTo(ppEnum);
    });
}

ComPtr<IUnknown> CDocument::GetEmbeddedObject(const Json& embedding)
{
    ComPtr<IUnknown> spObject;
    if (!GetFlag(embedding, "isFrame"))
        GetElement(embedding).As(&spObject);
    else if (const std::string frameId = GetFrameOfElement(GetNumber(embedding, "element", 0)); m_pBrowser)
        spObject = m_pBrowser->GetFrameBrowser(frameId);
    return spObject;
}

std::string CDocument::GetFrameOfElement(int nElement)
{
    if (!IsOnShow())
        return {};
    CPage& page = m_pBrowser->GetPage();
    const auto known = m_frameIds.find(nElement);
    if (known != m_frameIds.end() && page.GetFrames().Find(known->second) != nullptr)
        return known->second;
    return m_frameIds[nElement] = page.GetFrameOfElement(m_frameId, nElement);
}

ComPtr<CWindow> CDocument::GetWindowObject()
{
    if (m_pWindow != nullptr)
        return m_pWindow;
    auto spWindow = MakeObject<CWindow>(*this);
    m_pWindow = spWindow.Get();
    return spWindow;
}

ComPtr<CWindow> CDocument::GetWindowOfElement(int nElement)
{
    const std::string frameId = GetFrameOfElement(nElement);
    const CPageFrame* const pFrame = m_pBrowser ? m_pBrowser->GetPage().GetFrames().Find(frameId) : nullptr;
    return pFrame ? m_pBrowser->GetDocumentObject(*pFrame)->GetWindowObject() : nullptr;
}

ComPtr<CDocument> CDocument::GetParent() const
{
    if (!IsOnShow())
        return nullptr;
    const CFrameTree& frames = m_pBrowser->GetPage().GetFrames();
    const CPageFrame* const pParent = frames.Find(frames.Find(m_frameId)->strParentId);
    return pParent ? m_pBrowser->GetDocumentObject(*pParent) : nullptr;
}

ComPtr<IWebBrowser2> CDocument::GetFrameBrowser() const
{
    return IsOnShow() ? m_pBrowser->GetFrameBrowser(m_frameId) : nullptr;
}

STDMETHODIMP CDocument::get_frames(IHTMLFramesCollection2** ppFrames)
{
    if (ppFrames == nullptr)
        return E_POINTER;
    *ppFrames = nullptr;
    return ComBoundary([&] { return IsOnShow() ? GetWindowObject().CopyTo(ppFrames) : RPC_E_DISCONNECTED; });
}

STDMETHODIMP CDocument::get_parentWindow(IHTMLWindow2** ppWindow)
{
    if (ppWindow == nullptr)
        return E_POINTER;
    *ppWindow = nullptr;
    return ComBoundary([&] { return IsOnShow() ? GetWindowObject().CopyTo(ppWindow) : RPC_E_DISCONNECTED; });
}
