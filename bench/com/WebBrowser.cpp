#include "bench/com/WebBrowser.h"

#include "bench/com/BrowserWindow.h"
#include "bench/com/ClientSite.h"
#include "bench/com/Document.h"
#include "bench/com/FrameBrowser.h"
#include "bench/com/Variants.h"
#include "framework/ComBoundary.h"
#include "framework/Module.h"

#include <exdispid.h>
#include <oleacc.h>
#include <shlguid.h>

#include <iterator>
#include <utility>

using Microsoft::WRL::ComPtr;

CWebBrowser::CWebBrowser(IBrowserWindow& window, IPageView& view)
    : m_pWindow(&window), m_page(*this, view), m_spEvents(MakeObject<CEventSource>(*this)),
      m_spSite(MakeObject<CClientSite>(*this))
{
}

CWebBrowser::~CWebBrowser()
{
    Close();
}

bool CWebBrowser::Open(CEngine& engine, std::wstring& error)
{
    return m_page.Open(engine, error);
}

void CWebBrowser::Close()
{
    if (std::exchange(m_bQuit, true))
        return;
    m_spEvents->Fire(DISPID_ONQUIT);
    m_page.Close();
    m_pWindow = nullptr;
    m_spEvents->Detach();
    m_spSite->Detach();
    for (const auto& [frameId, spDocument] : std::exchange(m_documents, {}))
        spDocument->Detach();
    for (const auto& [frameId, spFrame] : std::exchange(m_frames, {}))
        spFrame->Detach();
}

const std::string& CWebBrowser::GetFrameId() const
{
    return m_page.GetTopFrameId();
}

ComPtr<IWebBrowser2> CWebBrowser::GetFrameBrowser(const std::string& frameId)
{
    if (m_page.GetFrames().IsTop(frameId))
        return this;
    if (m_pWindow == nullptr || m_page.GetFrames().Find(frameId) == nullptr)
        return nullptr;
    ComPtr<CFrameBrowser>& spFrame = m_frames[frameId];
    if (!spFrame)
        spFrame = MakeObject<CFrameBrowser>(*this, frameId);
    return spFrame;
}

ComPtr<CDocument> CWebBrowser::GetDocumentObject(const CPageFrame& frame)
{
    const ComPtr<CDocument> spKnown = m_documents[frame.strId];
    if (spKnown && spKnown->IsOnShow())
        return spKnown;
    const auto spNew = MakeObject<CDocument>(*this, frame);
    m_documents[frame.strId] = spNew;
    if (spKnown && frame.bReload)
        spNew->Replace(*spKnown.Get());
    else if (spKnown)
        spKnown->Detach();
    return spNew;
}

ComPtr<CClientSite> CWebBrowser::GetClientSite() const
{
    return m_spSite;
}

HRESULT CWebBrowser::GetDocument(const std::string& frameId, IDispatch** ppDocument)
{
    *ppDocument = nullptr;
    const CPageFrame* const pFrame = m_page.GetFrames().Find(frameId);
    if (pFrame == nullptr)
        return RPC_E_DISCONNECTED;
    const ComPtr<CDocument> spDocument = GetDocumentObject(*pFrame);
    return spDocument->IsOpenToTop() ? spDocument.CopyTo(ppDocument) : E_ACCESSDENIED;
}

ComPtr<IDocHostUIHandler> CWebBrowser::GetUIHandler()
{
    const CPageFrame* const pTop = m_page.IsOpen() ? m_page.GetFrames().Find(m_page.GetTopFrameId()) : nullptr;
    return pTop ? GetDocumentObject(*pTop)->GetUIHandler() : ComPtr<IDocHostUIHandler>(m_spSite);
}

void CWebBrowser::OnActivate(bool bActive)
{
    GetUIHandler()->OnDocWindowActivate(bActive);
}

bool CWebBrowser::TranslateKey(MSG& msg)
{
    return GetUIHandler()->TranslateAccelerator(&msg, nullptr, 0) == S_OK;
}

void CWebBrowser::AskForContextMenu(POINT screenPoint)
{
    ComPtr<IDispatch> spDocument;
    get_Document(&spDocument);
    GetUIHandler()->ShowContextMenu(CONTEXT_MENU_DEFAULT, &screenPoint, spDocument.Get(), nullptr);
}

LRESULT CWebBrowser::GetHtmlObject(WPARAM wParam)
{
    ComPtr<IDispatch> spDocument;
    if (FAILED(get_Document(&spDocument)))
        return 0;
    return LresultFromObject(IID_IHTMLDocument2, wParam, spDocument.Get());
}

STDMETHODIMP CWebBrowser::GoBack()
{
    if (!m_page.CanGoBack())
        return E_FAIL;
    m_page.GoBack();
    return S_OK;
}

STDMETHODIMP CWebBrowser::GoForward()
{
    if (!m_page.CanGoForward())
        return E_FAIL;
    m_page.GoForward();
    return S_OK;
}

STDMETHODIMP CWebBrowser::Quit()
{
    if (m_pWindow == nullptr)
        return RPC_E_DISCONNECTED;
    m_pWindow->Close();
    return S_OK;
}

STDMETHODIMP CWebBrowser::get_Parent(IDispatch** ppParent)
{
    return get_Application(ppParent);
}

STDMETHODIMP CWebBrowser::get_Name(BSTR* pbstrName)
{
    return CopyText(L"Bench browser", pbstrName);
}

STDMETHODIMP CWebBrowser::get_FullName(BSTR* pbstrPath)
{
    return CopyText(AfxGetModulePath(nullptr), pbstrPath);
}

STDMETHODIMP CWebBrowser::PutProperty(BSTR bstrName, VARIANT vValue)
{
    return ComBoundary([&] {
        m_properties[bstrName ? bstrName : L""] = vValue;
        m_spEvents->Fire(DISPID_PROPERTYCHANGE, {_variant_t(bstrName)});
        return S_OK;
    });
}

STDMETHODIMP CWebBrowser::GetProperty(BSTR bstrName, VARIANT* pvValue)
{
    if (pvValue == nullptr)
        return E_POINTER;
    VariantInit(pvValue);
    return ComBoundary([&] {
        const auto property = m_properties.find(bstrName ? bstrName : L"");
        return property == m_properties.end() ? S_OK : VariantCopy(pvValue, &property->second);
    });
}

STDMETHODIMP CWebBrowser::ShowBrowserBar(VARIANT* pvClsid, VARIANT* pvShow, VARIANT* pvSize)
{
    return ComBoundary([&]() -> HRESULT {
        CLSID clsid;
        if (FAILED(CLSIDFromString(GetOptionalText(pvClsid).c_str(), &clsid)))
            return E_INVALIDARG;
        if (m_pWindow == nullptr)
            return RPC_E_DISCONNECTED;
        return m_pWindow->ShowBar(clsid, GetOptionalFlag(pvShow, true), GetOptionalNumber(pvSize));
    });
}

STDMETHODIMP CWebBrowser::put_StatusText(BSTR bstrText)
{
    return ComBoundary([&]() -> HRESULT {
        if (m_pWindow == nullptr)
            return RPC_E_DISCONNECTED;
        m_pWindow->SetStatusText(bstrText ? bstrText : L"");
        return S_OK;
    });
}

STDMETHODIMP CWebBrowser::EnumConnectionPoints(IEnumConnectionPoints** ppEnum)
{
    if (ppEnum != nullptr)
        *ppEnum = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP CWebBrowser::FindConnectionPoint(REFIID iid, IConnectionPoint** ppPoint)
{
    if (ppPoint == nullptr)
        return E_POINTER;
    *ppPoint = nullptr;
    return IsEqualIID(iid, DIID_DWebBrowserEvents2) ? m_spEvents.CopyTo(ppPoint) : CONNECT_E_NOCONNECTION;
}

STDMETHODIMP CWebBrowser::QueryService(REFGUID service, REFIID iid, void** ppv)
{
    if (ppv == nullptr)
        return E_POINTER;
    *ppv = nullptr;
    const bool bKnown = IsEqualGUID(service, IID_IWebBrowserApp) || IsEqualGUID(service, IID_IWebBrowser2) ||
                        IsEqualGUID(service, SID_STopLevelBrowser);
    return bKnown ? QueryInterface(iid, ppv) : E_NOINTERFACE;
}
