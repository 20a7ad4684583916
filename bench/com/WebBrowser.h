#pragma once

#include "bench/com/BrowserBase.h"
#include "bench/com/CountedObject.h"
#include "bench/com/EventSource.h"
#include "bench/engine/Page.h"

#include <windows.h>
#include <comutil.h>
#include <exdisp.h>
#include <mshtmhst.h>
#include <ocidl.h>
#include <servprov.h>
#include <wrl/client.h>

#include <map>
#include <string>

class CClientSite;
class CDocument;
class CEngine;
class CFrameBrowser;
class IBrowserWindow;
class IPageView;

/// The browser object of one window or tab: IWebBrowser2 of its page, source of DWebBrowserEvents2, and the services
/// that a band asks its site for. The window makes one on its own thread by MakeObject<CWebBrowser>(window, view),
/// opens it, and forwards the QueryService of its site here. Everything belongs to that thread.
///
/// The window calls Close when it goes down and keeps its reference until its message loop has ended; others may hold
/// theirs longer, and are answered with errors.
class CWebBrowser : public CCountedObject<CWebBrowser, CBrowserBase, IConnectionPointContainer, IServiceProvider>,
                    private IPageEvents
{
    BEGIN_COM_MAP(CWebBrowser)
        COM_INTERFACE_ENTRY(IWebBrowser2)
        COM_INTERFACE_ENTRY(IWebBrowserApp)
        COM_INTERFACE_ENTRY(IWebBrowser)
        COM_INTERFACE_ENTRY2(IDispatch, IWebBrowser2)
        COM_INTERFACE_ENTRY(IConnectionPointContainer)
        COM_INTERFACE_ENTRY(IServiceProvider)
    END_COM_MAP()

public:
    /// Both are the window's and must outlive the call of Close.
    CWebBrowser(IBrowserWindow& window, IPageView& view);

    ~CWebBrowser() override;

    /// Opens an empty page in the engine. False with one line for a person when that fails.
    bool Open(CEngine& engine, std::wstring& error);

    /// Fires OnQuit and closes the page. To be called while bands still stand, before they are closed.
    void Close();

    /// The page for pictures and input; it stays for as long as this object.
    CPage& GetPage() { return m_page; }

    /// The view's answer to "WM_HTML_GETOBJECT": the document on show, 0 when there is none.
    LRESULT GetHtmlObject(WPARAM wParam);

    /// What the document asks its handler when the view gets or loses the focus, before it takes a key, and for a right
    /// click. Whether the handler took the key.
    void OnActivate(bool bActive);
    bool TranslateKey(MSG& msg);
    void AskForContextMenu(POINT screenPoint);

    /// For the objects over the page: null once the browser has been closed.
    IBrowserWindow* GetWindow() const { return m_pWindow; }
    /// The browser object of a frame, this one for the top; null when there is no such frame.
    Microsoft::WRL::ComPtr<IWebBrowser2> GetFrameBrowser(const std::string& frameId);
    /// The document of a frame, the same object as long as the frame shows it. E_ACCESSDENIED when the top document may
    /// not look into it.
    HRESULT GetDocument(const std::string& frameId, IDispatch** ppDocument);

    /// The same without that condition.
    Microsoft::WRL::ComPtr<CDocument> GetDocumentObject(const CPageFrame& frame);
    /// The site of the documents.
    Microsoft::WRL::ComPtr<CClientSite> GetClientSite() const;

    STDMETHODIMP GoBack() override;
    STDMETHODIMP GoForward() override;
    STDMETHODIMP Quit() override;
    STDMETHODIMP get_Parent(IDispatch** ppParent) override;
    STDMETHODIMP get_Name(BSTR* pbstrName) override;
    STDMETHODIMP get_FullName(BSTR* pbstrPath) override;
    STDMETHODIMP PutProperty(BSTR bstrName, VARIANT vValue) override;
    STDMETHODIMP GetProperty(BSTR bstrName, VARIANT* pvValue) override;
    STDMETHODIMP ShowBrowserBar(VARIANT* pvClsid, VARIANT* pvShow, VARIANT* pvSize) override;
    STDMETHODIMP put_StatusText(BSTR bstrText) override;

    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** ppEnum) override;
    STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint** ppPoint) override;

    /// This browser, for the service of a browser or of the top level one.
    STDMETHODIMP QueryService(REFGUID service, REFIID iid, void** ppv) override;

private:
    CWebBrowser* GetBrowser() override { return m_pWindow ? this : nullptr; }
    const std::string& GetFrameId() const override;

    bool OnBeforeNavigate(const CNavigation& navigation) override;
    void OnDownloadBegin(const std::string& frameId) override;
    void OnNavigateComplete(const std::string& frameId) override;
    void OnDownloadComplete(const std::string& frameId) override;
    void OnDocumentComplete(const std::string& frameId) override;
    void OnNavigateError(const std::string& frameId, const std::wstring& url) override;
    void OnFrameGone(const std::string& frameId) override;
    void OnTitleChanged(const std::wstring& title) override;
    void OnFileDownload(const std::string& frameId) override;
    void OnHistoryChanged() override;
    void OnScriptError(const CScriptError& error) override;

    /// The handler of the document on show, or the site in its place.
    Microsoft::WRL::ComPtr<IDocHostUIHandler> GetUIHandler();

    /// Lets go of a document that the frame no longer shows.
    void ForgetOldDocument(const std::string& frameId);

    /// An event whose arguments are the frame's browser and its address.
    void FireOfFrame(DISPID dispid, const std::string& frameId);

    IBrowserWindow* m_pWindow;
    bool m_bQuit = false; ///< OnQuit has been told
    CPage m_page;
    Microsoft::WRL::ComPtr<CEventSource> m_spEvents;
    Microsoft::WRL::ComPtr<CClientSite> m_spSite;
    std::map<std::string, Microsoft::WRL::ComPtr<CFrameBrowser>> m_frames; ///< below the top, by the engine's names
    std::map<std::string, Microsoft::WRL::ComPtr<CDocument>> m_documents;  ///< those on show that were asked for
    std::map<std::wstring, _variant_t> m_properties;
};
