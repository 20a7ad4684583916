#include "bench/com/FrameBrowser.h"

#include "bench/com/WebBrowser.h"
#include "framework/ComBoundary.h"

#include <shlguid.h>

STDMETHODIMP CFrameBrowser::get_Parent(IDispatch** ppParent)
{
    if (ppParent == nullptr)
        return E_POINTER;
    *ppParent = nullptr;
    return ComBoundary([&] {
        const CPageFrame* const pFrame = m_pBrowser ? m_pBrowser->GetPage().GetFrames().Find(m_frameId) : nullptr;
        return pFrame ? m_pBrowser->GetDocument(pFrame->strParentId, ppParent) : RPC_E_DISCONNECTED;
    });
}

STDMETHODIMP CFrameBrowser::QueryService(REFGUID service, REFIID iid, void** ppv)
{
    if (ppv == nullptr)
        return E_POINTER;
    *ppv = nullptr;
    if (IsEqualGUID(service, IID_IWebBrowserApp) || IsEqualGUID(service, IID_IWebBrowser2))
        return QueryInterface(iid, ppv);
    return m_pBrowser ? m_pBrowser->QueryService(service, iid, ppv) : RPC_E_DISCONNECTED;
}
