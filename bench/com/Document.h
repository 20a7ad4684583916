#pragma once

#include "bench/com/CountedObject.h"
#include "bench/protocol/Json.h"
#include "notimpl/HTMLDocument2.h"
#include "notimpl/OleContainer.h"

#include <windows.h>
#include <mshtml.h>
#include <oleidl.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

class CWebBrowser;
struct CPageFrame;

/// The document that a frame shows. When the frame shows another one or has gone, every operation answers
/// RPC_E_DISCONNECTED, and none touches the new document.
class CDocument : public CCountedObject<CDocument, CHTMLDocument2NotImpl, COleContainerNotImpl, IOleWindow>
{
    BEGIN_COM_MAP(CDocument)
        COM_INTERFACE_ENTRY(IHTMLDocument2)
        COM_INTERFACE_ENTRY(IHTMLDocument)
        COM_INTERFACE_ENTRY2(IDispatch, IHTMLDocument2)
        COM_INTERFACE_ENTRY(IOleContainer)
        COM_INTERFACE_ENTRY(IParseDisplayName)
        COM_INTERFACE_ENTRY(IOleWindow)
    END_COM_MAP()

public:
    CDocument(CWebBrowser& browser, const CPageFrame& frame);

    /// Whether the frame still shows it.
    bool IsOnShow() const;
    /// It no longer does.
    void Detach() { m_pBrowser = nullptr; }

    /// Whether the top document may look into this one.
    bool IsOpenToTop();

    /// Asks the document by a function of page.js.
    std::optional<Json> Ask(const char* pszFunction, Json arguments = Json::array());

    STDMETHODIMP get_URL(BSTR* pbstrUrl) override;
    STDMETHODIMP get_title(BSTR* pbstrTitle) override;
    STDMETHODIMP get_readyState(BSTR* pbstrState) override;

    STDMETHODIMP EnumObjects(DWORD dwFlags, IEnumUnknown** ppEnum) override;

    STDMETHODIMP GetWindow(HWND* phWnd) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL bEnter) override;

private:
    HRESULT GetTextProperty(const char* pszName, BSTR* pbstr);

    /// The browser of a frame, or whatever else page.js found; null for what can't be given.
    Microsoft::WRL::ComPtr<IUnknown> GetEmbeddedObject(const Json& embedding);
    /// The engine's name of the frame that an element shows, empty when it shows none.
    std::string GetFrameOfElement(int nElement);

    CWebBrowser* m_pBrowser; ///< outlives the document or detaches it
    std::string m_frameId;
    int m_nDocument;                       ///< which of the frame's documents it is
    std::optional<bool> m_bOpenToTop;      ///< once it has been asked
    std::map<int, std::string> m_frameIds; ///< of elements that have been asked for them
};
