#include "band/TrelvixMSHTMLUIHandler.h"

#include "band/TrelvixWindow.h"
#include "framework/ComBoundary.h"
#include "framework/ComQuery.h"

using Microsoft::WRL::ComPtr;

namespace
{
/// What an operation answers when there is no default to ask.
template <class T>
HRESULT WithoutDefault(T** ppOut, HRESULT hr)
{
    if (ppOut != nullptr)
        *ppOut = nullptr;
    return hr;
}

/// The document that a command reports a script error of; null for any other command.
ComPtr<IHTMLDocument2> GetScriptErrorDocument(DWORD nCmdID, const VARIANT* pvaIn)
{
    if (nCmdID != OLECMDID_SHOWSCRIPTERROR || pvaIn == nullptr || V_VT(pvaIn) != VT_UNKNOWN)
        return nullptr;
    return QueryFor<IHTMLDocument2>(V_UNKNOWN(pvaIn));
}

void AnswerContinueScripts(VARIANT* pvaOut, bool bContinueScripts)
{
    if (pvaOut == nullptr)
        return;
    V_VT(pvaOut) = VT_BOOL;
    V_BOOL(pvaOut) = bContinueScripts ? VARIANT_TRUE : VARIANT_FALSE;
}
} // namespace

STDMETHODIMP CTrelvixMSHTMLUIHandler::SetOleClientSite(IOleClientSite* pClientSite)
{
    if (pClientSite == nullptr)
        return E_FAIL;
    m_spDefaultOleCommandTarget.Reset();
    HRESULT hr = pClientSite->QueryInterface(IID_PPV_ARGS(m_spDefaultDocHostUIHandler.ReleaseAndGetAddressOf()));
    if (FAILED(hr))
        return hr;
    hr = pClientSite->QueryInterface(IID_PPV_ARGS(&m_spDefaultOleCommandTarget));
    if (FAILED(hr))
        m_spDefaultDocHostUIHandler.Reset();
    return hr;
}

STDMETHODIMP CTrelvixMSHTMLUIHandler::SetToolbarWindow(VARIANT vTrelvixWindow)
{
    if (V_VT(&vTrelvixWindow) != VT_UNKNOWN)
        return E_INVALIDARG;
    m_pTrelvixWindow = reinterpret_cast<CTrelvixWindow*>(V_UNKNOWN(&vTrelvixWindow));
    return S_OK;
}

STDMETHODIMP CTrelvixMSHTMLUIHandler::ClearToolbarWindow()
{
    m_pTrelvixWindow = nullptr;
    return S_OK;
}

STDMETHODIMP CTrelvixMSHTMLUIHandler::ShowContextMenu(DWORD dwID, POINT* ppt, IUnknown* pTarget, IDispatch* pObject)
{
    return m_spDefaultDocHostUIHandler ? m_spDefaultDocHostUIHandler->ShowContextMenu(dwID, ppt, pTarget, pObject)
                                       : S_FALSE;
}

STDMETHODIMP CTrelvixMSHTMLUIHandler::GetHostInfo(DOCHOSTUIINFO* pInfo)
{
    return m_spDefaultDocHostUIHandler ? m_spDefaultDocHostUIHandler->GetHostInfo(pInfo) : S_OK;
}

STDMETHODIMP CTrelvixMSHTMLUIHandler::ShowUI(DWORD dwID, IOleInPlaceActiveObject* pActiveObject,
                                             IOleCommandTarget* pTarget, IOleInPlaceFrame* pFrame,
                                             IOleInPlaceUIWindow* pDocument)
{
    return m_spDefaultDocHostUIHandler
               ? m_spDefaultDocHostUIHandler->ShowUI(dwID, pActiveObject, pTarget, pFrame, pDocument)
               : S_FALSE;
}

STDMETHODIMP CTrelvixMSHTMLUIHandler::HideUI()
{
    return m_spDefaultDocHostUIHandler ? m_spDefaultDocHostUIHandler->HideUI() : S_OK;
}

STDMETHODIMP CTrelvixMSHTMLUIHandler::UpdateUI()
{
    return m_spDefaultDocHostUIHandler ? m_spDefaultDocHostUIHandler->UpdateUI() : S_OK;
}

STDMETHODIMP CTrelvixMSHTMLUIHandler::EnableModeless(BOOL bEnable)
{
    return m_spDefaultDocHostUIHandler ? m_spDefaultDocHostUIHandler->EnableModeless(bEnable) : S_OK;
}

STDMETHODIMP CTrelvixMSHTMLUIHandler::OnDocWindowActivate(BOOL bActivate)
{
    return m_spDefaultDocHostUIHandler ? m_spDefaultDocHostUIHandler->OnDocWindowActivate(bActivate) : S_OK;
}

STDMETHODIMP CTrelvixMSHTMLUIHandler::OnFrameWindowActivate(BOOL bActivate)
{
    return m_spDefaultDocHostUIHandler ? m_spDefaultDocHostUIHandler->OnFrameWindowActivate(bActivate) : S_OK;
}

STDMETHODIMP CTrelvixMSHTMLUIHandler::ResizeBorder(LPCRECT pRect, IOleInPlaceUIWindow* pWindow, BOOL bFrameWindow)
{
    return m_spDefaultDocHostUIHandler ? m_spDefaultDocHostUIHandler->ResizeBorder(pRect, pWindow, bFrameWindow) : S_OK;
}

STDMETHODIMP CTrelvixMSHTMLUIHandler::TranslateAccelerator(LPMSG pMsg, const GUID* pGroup, DWORD nCmdID)
{
    return m_spDefaultDocHostUIHandler ? m_spDefaultDocHostUIHandler->TranslateAccelerator(pMsg, pGroup, nCmdID)
                                       : E_NOTIMPL;
}

STDMETHODIMP CTrelvixMSHTMLUIHandler::GetOptionKeyPath(LPOLESTR* ppszKey, DWORD dw)
{
    return m_spDefaultDocHostUIHandler ? m_spDefaultDocHostUIHandler->GetOptionKeyPath(ppszKey, dw)
                                       : WithoutDefault(ppszKey, E_FAIL);
}

STDMETHODIMP CTrelvixMSHTMLUIHandler::GetDropTarget(IDropTarget* pTarget, IDropTarget** ppTarget)
{
    return m_spDefaultDocHostUIHandler ? m_spDefaultDocHostUIHandler->GetDropTarget(pTarget, ppTarget)
                                       : WithoutDefault(ppTarget, S_OK);
}

STDMETHODIMP CTrelvixMSHTMLUIHandler::GetExternal(IDispatch** ppDispatch)
{
    return m_spDefaultDocHostUIHandler ? m_spDefaultDocHostUIHandler->GetExternal(ppDispatch)
                                       : WithoutDefault(ppDispatch, S_FALSE);
}

STDMETHODIMP CTrelvixMSHTMLUIHandler::TranslateUrl(DWORD dwTranslate, LPWSTR pszUrlIn, LPWSTR* ppszUrlOut)
{
    return m_spDefaultDocHostUIHandler ? m_spDefaultDocHostUIHandler->TranslateUrl(dwTranslate, pszUrlIn, ppszUrlOut)
                                       : WithoutDefault(ppszUrlOut, S_FALSE);
}

STDMETHODIMP CTrelvixMSHTMLUIHandler::FilterDataObject(IDataObject* pObject, IDataObject** ppObject)
{
    return m_spDefaultDocHostUIHandler ? m_spDefaultDocHostUIHandler->FilterDataObject(pObject, ppObject)
                                       : WithoutDefault(ppObject, S_FALSE);
}

STDMETHODIMP CTrelvixMSHTMLUIHandler::QueryStatus(const GUID* pGroup, ULONG nCommands, OLECMD* pCommands,
                                                  OLECMDTEXT* pText)
{
    return m_spDefaultOleCommandTarget ? m_spDefaultOleCommandTarget->QueryStatus(pGroup, nCommands, pCommands, pText)
                                       : E_FAIL;
}

STDMETHODIMP CTrelvixMSHTMLUIHandler::Exec(const GUID* pGroup, DWORD nCmdID, DWORD nCmdexecopt, VARIANT* pvaIn,
                                           VARIANT* pvaOut)
{
    // An item's dialog lets the browser navigate, and the document then drops the handler.
    const ComPtr<IOleCommandTarget> spThis(this);
    return ComBoundary([&] {
        const ComPtr<IHTMLDocument2> spDocument = GetScriptErrorDocument(nCmdID, pvaIn);
        if (spDocument && HandleScriptError(spDocument.Get(), pvaOut))
            return S_OK;
        return m_spDefaultOleCommandTarget
                   ? m_spDefaultOleCommandTarget->Exec(pGroup, nCmdID, nCmdexecopt, pvaIn, pvaOut)
                   : E_FAIL;
    });
}

bool CTrelvixMSHTMLUIHandler::HandleScriptError(IHTMLDocument2* pDocument, VARIANT* pvaOut)
{
    if (m_pTrelvixWindow == nullptr)
        return false; // the page has outlived the toolbar: its error is the browser's own
    bool bContinueScripts = true;
    bool bNotHandled = true;
    m_pTrelvixWindow->FireScriptError(pDocument, &bContinueScripts, &bNotHandled);
    if (bNotHandled)
        return false;
    AnswerContinueScripts(pvaOut, bContinueScripts);
    return true;
}
