#include "bench/com/ClientSite.h"
#include "bench/com/Document.h"
#include "bench/com/EventObject.h"
#include "bench/com/WebBrowser.h"
#include "framework/ComQuery.h"

#include <comutil.h>

#include <utility>

using Microsoft::WRL::ComPtr;

STDMETHODIMP CDocument::GetClientSite(IOleClientSite** ppSite)
{
    if (ppSite == nullptr)
        return E_POINTER;
    *ppSite = nullptr;
    return IsOnShow() ? m_pBrowser->GetClientSite().CopyTo(ppSite) : RPC_E_DISCONNECTED;
}

STDMETHODIMP CDocument::SetUIHandler(IDocHostUIHandler* pHandler)
{
    if (!IsOnShow())
        return RPC_E_DISCONNECTED;
    m_spUIHandler = pHandler;
    if (pHandler == nullptr)
        return S_OK;
    // As every document does before it shows anything.
    const ComPtr<IDocHostUIHandler> spHandler = pHandler;
    DOCHOSTUIINFO info = {};
    info.cbSize = sizeof info;
    spHandler->GetHostInfo(&info);
    CoTaskMemFree(info.pchHostCss);
    CoTaskMemFree(info.pchHostNS);
    return S_OK;
}

ComPtr<IDocHostUIHandler> CDocument::GetUIHandler() const
{
    return m_spUIHandler || !m_pBrowser ? m_spUIHandler : ComPtr<IDocHostUIHandler>(m_pBrowser->GetClientSite());
}

ComPtr<IOleCommandTarget> CDocument::FindCommandTarget() const
{
    if (m_spUIHandler)
        if (ComPtr<IOleCommandTarget> spTarget = QueryFor<IOleCommandTarget>(m_spUIHandler.Get()))
            return spTarget;
    const ComPtr<CDocument> spParent = GetParent();
    return spParent ? spParent->FindCommandTarget() : nullptr;
}

bool CDocument::ReportScriptError(const CScriptError& error)
{
    const ComPtr<CDocument> spSelf(this);
    const ComPtr<CClientSite> spSite = m_pBrowser->GetClientSite();
    const ComPtr<CEventObject> spOuterEvent = std::exchange(m_spEvent, MakeObject<CEventObject>(error));
    _variant_t in;
    V_VT(&in) = VT_UNKNOWN;
    static_cast<IHTMLDocument2*>(this)->QueryInterface(IID_PPV_ARGS(&V_UNKNOWN(&in)));
    _variant_t goOn;
    const ComPtr<IOleCommandTarget> spTarget = FindCommandTarget();
    const auto isHandledBy = [&](IOleCommandTarget* pTarget) {
        return pTarget && pTarget->Exec(&CGID_DocHostCommandHandler, OLECMDID_SHOWSCRIPTERROR, OLECMDEXECOPT_DODEFAULT,
                                        &in, &goOn) == S_OK;
    };
    if (!isHandledBy(spTarget.Get()))
    {
        // The site opens a box.
        const ComPtr<IDocHostUIHandler> spHandler = GetUIHandler();
        spHandler->EnableModeless(FALSE);
        isHandledBy(spSite.Get());
        spHandler->EnableModeless(TRUE);
    }
    m_spEvent = spOuterEvent;
    return V_VT(&goOn) != VT_BOOL || V_BOOL(&goOn) != VARIANT_FALSE;
}

ComPtr<CEventObject> CDocument::GetEvent() const
{
    return m_spEvent;
}
