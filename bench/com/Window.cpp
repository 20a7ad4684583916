#include "bench/com/Window.h"

#include "bench/com/EventObject.h"
#include "bench/com/WebBrowser.h"

#include <exdisp.h>

using Microsoft::WRL::ComPtr;

CWindow::~CWindow()
{
    GetDocumentObject().ForgetWindow();
}

HRESULT CWindow::CheckAccess() const
{
    return ComBoundary([this] {
        if (!GetDocumentObject().IsOnShow())
            return RPC_E_DISCONNECTED;
        return GetDocumentObject().IsOpenToTop() ? S_OK : E_ACCESSDENIED;
    });
}

STDMETHODIMP CWindow::item(VARIANT* pvIndex, VARIANT* pvWindow)
{
    if (pvIndex == nullptr || pvWindow == nullptr)
        return E_POINTER;
    VariantInit(pvWindow);
    const auto take = [&](const Json& element) -> HRESULT {
        const ComPtr<CWindow> spWindow = GetDocumentObject().GetWindowOfElement(element.get<int>());
        if (!spWindow)
            return DISP_E_MEMBERNOTFOUND;
        V_VT(pvWindow) = VT_DISPATCH;
        return spWindow.CopyTo(&V_DISPATCH(pvWindow));
    };
    return ComBoundary([&] {
        const bool bByName = V_VT(pvIndex) == VT_BSTR;
        return Ask("frame", take, bByName ? Json(ToUtf8(GetOptionalText(pvIndex))) : Json(GetOptionalNumber(pvIndex)));
    });
}

STDMETHODIMP CWindow::get_length(long* pnLength)
{
    return AskNumber(pnLength, "frameCount");
}

STDMETHODIMP CWindow::get_frames(IHTMLFramesCollection2** ppFrames)
{
    return ppFrames ? QueryInterface(IID_PPV_ARGS(ppFrames)) : E_POINTER;
}

STDMETHODIMP CWindow::get_document(IHTMLDocument2** ppDocument)
{
    if (ppDocument == nullptr)
        return E_POINTER;
    *ppDocument = nullptr;
    const HRESULT hr = CheckAccess();
    return FAILED(hr) ? hr : GetDocumentObject().QueryInterface(IID_PPV_ARGS(ppDocument));
}

STDMETHODIMP CWindow::get_name(BSTR* pbstrName)
{
    if (pbstrName == nullptr)
        return E_POINTER;
    *pbstrName = nullptr;
    const HRESULT hr = CheckAccess();
    return FAILED(hr) ? hr : AskText(pbstrName, "getOfWindow", "name");
}

STDMETHODIMP CWindow::get_parent(IHTMLWindow2** ppParent)
{
    if (ppParent == nullptr)
        return E_POINTER;
    *ppParent = nullptr;
    return ComBoundary([&] {
        if (!GetDocumentObject().IsOnShow())
            return RPC_E_DISCONNECTED;
        const ComPtr<CDocument> spParent = GetDocumentObject().GetParent();
        return spParent ? spParent->GetWindowObject().CopyTo(ppParent) : get_self(ppParent);
    });
}

STDMETHODIMP CWindow::get_self(IHTMLWindow2** ppWindow)
{
    return ppWindow ? QueryInterface(IID_PPV_ARGS(ppWindow)) : E_POINTER;
}

STDMETHODIMP CWindow::get_top(IHTMLWindow2** ppTop)
{
    if (ppTop == nullptr)
        return E_POINTER;
    *ppTop = nullptr;
    return ComBoundary([&] {
        if (!GetDocumentObject().IsOnShow())
            return RPC_E_DISCONNECTED;
        ComPtr<CDocument> spTop = &GetDocumentObject();
        while (ComPtr<CDocument> spParent = spTop->GetParent())
            spTop = std::move(spParent);
        return spTop->GetWindowObject().CopyTo(ppTop);
    });
}

STDMETHODIMP CWindow::get_event(IHTMLEventObj** ppEvent)
{
    if (ppEvent == nullptr)
        return E_POINTER;
    *ppEvent = nullptr;
    const ComPtr<CEventObject> spEvent = GetDocumentObject().GetEvent();
    return spEvent ? spEvent.CopyTo(ppEvent) : S_OK;
}

STDMETHODIMP CWindow::QueryService(REFGUID service, REFIID iid, void** ppv)
{
    if (ppv == nullptr)
        return E_POINTER;
    *ppv = nullptr;
    return ComBoundary([&]() -> HRESULT {
        const ComPtr<IWebBrowser2> spBrowser = GetDocumentObject().GetFrameBrowser();
        ComPtr<IServiceProvider> spServices;
        if (!spBrowser || FAILED(spBrowser.As(&spServices)))
            return RPC_E_DISCONNECTED;
        return spServices->QueryService(service, iid, ppv);
    });
}
