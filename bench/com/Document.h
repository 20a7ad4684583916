#pragma once

#include "bench/com/CountedObject.h"
#include "bench/protocol/Json.h"
#include "notimpl/HTMLDocument2.h"
#include "notimpl/HTMLDocument3.h"
#include "notimpl/HTMLDocument5.h"
#include "notimpl/MarkupContainer.h"
#include "notimpl/MarkupServices.h"
#include "notimpl/OleContainer.h"
#include "notimpl/OleObject.h"

#include <windows.h>
#include <docobj.h>
#include <mshtmhst.h>
#include <mshtml.h>
#include <oleidl.h>
#include <wrl/client.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

class CDocumentMarkup;
class CElement;
class CEventObject;
class CWebBrowser;
class CWindow;
struct CPageFrame;
struct CScriptError;

/// The document that a frame shows. When the frame shows another one or has gone, every operation answers
/// RPC_E_DISCONNECTED, and none touches the new document.
class CDocument : public CCountedObject<CDocument, CHTMLDocument2NotImpl, CHTMLDocument3NotImpl, CHTMLDocument5NotImpl,
                                        COleContainerNotImpl, COleObjectNotImpl, IOleWindow, ICustomDoc,
                                        CMarkupServicesNotImpl, CMarkupContainerNotImpl>
{
    BEGIN_COM_MAP(CDocument)
        COM_INTERFACE_ENTRY(IHTMLDocument2)
        COM_INTERFACE_ENTRY(IHTMLDocument)
        COM_INTERFACE_ENTRY2(IDispatch, IHTMLDocument2)
        COM_INTERFACE_ENTRY(IHTMLDocument3)
        COM_INTERFACE_ENTRY(IHTMLDocument5)
        COM_INTERFACE_ENTRY(IOleContainer)
        COM_INTERFACE_ENTRY(IParseDisplayName)
        COM_INTERFACE_ENTRY(IOleObject)
        COM_INTERFACE_ENTRY(IOleWindow)
        COM_INTERFACE_ENTRY(ICustomDoc)
        COM_INTERFACE_ENTRY(IMarkupServices)
        COM_INTERFACE_ENTRY(IMarkupContainer)
    END_COM_MAP()

public:
    CDocument(CWebBrowser& browser, const CPageFrame& frame);
    ~CDocument() override;

    /// Whether the frame still shows it.
    bool IsOnShow() const;
    /// It no longer does; the handler that was set for it is released.
    void Detach();
    /// Takes the place of one that was loaded again and isn't on show any more; the handler that was set for it goes
    /// on.
    void Replace(CDocument& old);

    /// Whether the top document may look into this one.
    bool IsOpenToTop();

    /// Asks the document by a function of page.js.
    std::optional<Json> Ask(const char* pszFunction, Json arguments = Json::array());
    /// Calls a function of page.js without waiting for its end.
    void Tell(const char* pszFunction, Json arguments);
    /// Why there was no answer.
    HRESULT GetFailure() const { return IsOnShow() ? E_FAIL : RPC_E_DISCONNECTED; }
    /// Asks for an element; none is a success with null.
    template <class... Arguments>
    HRESULT AskElement(IHTMLElement** ppElement, const char* pszFunction, const Arguments&... arguments)
    {
        return TakeElement(ppElement, [&] { return Ask(pszFunction, Json::array({arguments...})); });
    }

    /// The object of an element as page.js describes it, the same one as long as anyone holds it.
    Microsoft::WRL::ComPtr<CElement> GetElement(const Json& description);
    void ForgetElement(int nElement);

    CDocumentMarkup& GetMarkup() { return *m_pMarkup; }
    /// The caller changes the page: the hits that a search promised may not be there any longer.
    void ForgetSearch();

    /// The document's window, the same one as long as anyone holds it.
    Microsoft::WRL::ComPtr<CWindow> GetWindowObject();
    void ForgetWindow() { m_pWindow = nullptr; }
    /// The window that an element shows; null when it shows none.
    Microsoft::WRL::ComPtr<CWindow> GetWindowOfElement(int nElement);

    /// The document in which its frame stands; null for the top.
    Microsoft::WRL::ComPtr<CDocument> GetParent() const;
    /// The browser object of its frame; null when the document isn't on show.
    Microsoft::WRL::ComPtr<IWebBrowser2> GetFrameBrowser() const;

    /// Its handler, or the site when none was set for it or it isn't on show.
    Microsoft::WRL::ComPtr<IDocHostUIHandler> GetUIHandler() const;

    /// Hands a script error to the handler of this document or the nearest one above, or else to the site. Whether the
    /// page's scripts shall go on.
    bool ReportScriptError(const CScriptError& error);
    /// The event object of the error that is being reported; null at any other time.
    Microsoft::WRL::ComPtr<CEventObject> GetEvent() const;

    STDMETHODIMP get_URL(BSTR* pbstr) override { return GetText("URL", pbstr); }
    STDMETHODIMP get_title(BSTR* pbstr) override { return GetText("title", pbstr); }
    STDMETHODIMP get_readyState(BSTR* pbstr) override { return GetText("readyState", pbstr); }
    STDMETHODIMP get_charset(BSTR* pbstr) override { return GetText("characterSet", pbstr); }
    STDMETHODIMP get_domain(BSTR* pbstr) override { return GetText("domain", pbstr); }
    STDMETHODIMP get_referrer(BSTR* pbstr) override { return GetText("referrer", pbstr); }
    STDMETHODIMP get_cookie(BSTR* pbstr) override { return GetText("cookie", pbstr); }
    STDMETHODIMP put_title(BSTR bstrTitle) override;
    STDMETHODIMP get_body(IHTMLElement** ppBody) override;
    STDMETHODIMP get_activeElement(IHTMLElement** ppElement) override;
    STDMETHODIMP get_all(IHTMLElementCollection** ppAll) override;
    STDMETHODIMP get_frames(IHTMLFramesCollection2** ppFrames) override;
    STDMETHODIMP get_parentWindow(IHTMLWindow2** ppWindow) override;

    STDMETHODIMP get_documentElement(IHTMLElement** ppElement) override;
    STDMETHODIMP getElementsByTagName(BSTR bstrTag, IHTMLElementCollection** ppElements) override;

    STDMETHODIMP get_compatMode(BSTR* pbstr) override { return GetText("compatMode", pbstr); }

    STDMETHODIMP EnumObjects(DWORD dwFlags, IEnumUnknown** ppEnum) override;

    STDMETHODIMP GetClientSite(IOleClientSite** ppSite) override;

    STDMETHODIMP CreateMarkupPointer(IMarkupPointer** ppPointer) override;
    /// Knows the tags that are asked for.
    STDMETHODIMP CreateElement(ELEMENT_TAG_ID eTag, OLECHAR* pszAttributes, IHTMLElement** ppElement) override;
    /// Puts a new element around what is between two pointers. Where that crosses the borders of other elements, which
    /// a tree can't have, copies of the element take the rest.
    STDMETHODIMP InsertElement(IHTMLElement* pElement, IMarkupPointer* pStart, IMarkupPointer* pEnd) override;

    STDMETHODIMP GetWindow(HWND* phWnd) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL bEnter) override;

    STDMETHODIMP SetUIHandler(IDocHostUIHandler* pHandler) override;

private:
    HRESULT TakeElement(IHTMLElement** ppElement, const std::function<std::optional<Json>()>& ask);
    HRESULT GetText(const char* pszName, BSTR* pbstr);
    HRESULT InsertBetween(int nElement, int nStart, int nEnd);
    HRESULT GetCollection(std::string kind, IHTMLElementCollection** ppElements);
    Microsoft::WRL::ComPtr<IOleCommandTarget> FindCommandTarget() const;

    /// The browser of a frame, or whatever else page.js found; null for what can't be given.
    Microsoft::WRL::ComPtr<IUnknown> GetEmbeddedObject(const Json& embedding);
    /// The engine's name of the frame that an element shows, empty when it shows none.
    std::string GetFrameOfElement(int nElement);

    CWebBrowser* m_pBrowser; ///< outlives the document or detaches it
    std::string m_frameId;
    int m_nDocument;                       ///< which of the frame's documents it is
    std::optional<bool> m_bOpenToTop;      ///< once it has been asked
    std::map<int, std::string> m_frameIds; ///< of elements that have been asked for them
    std::unique_ptr<CDocumentMarkup> m_pMarkup;
    std::map<int, CElement*> m_elements; ///< that someone holds; each takes itself out
    CWindow* m_pWindow = nullptr;        ///< while someone holds it
    Microsoft::WRL::ComPtr<IDocHostUIHandler> m_spUIHandler;
    Microsoft::WRL::ComPtr<CEventObject> m_spEvent;
};
