#pragma once

#include "bench/com/DocumentPart.h"
#include "notimpl/HTMLBodyElement.h"
#include "notimpl/HTMLElement.h"
#include "notimpl/HTMLElement2.h"
#include "notimpl/HTMLFrameBase2.h"
#include "notimpl/HTMLFrameSetElement.h"

#include <windows.h>
#include <mshtml.h>

#include <string>

/// An element of a document. As long as anyone holds it, the same element is the same object. The interfaces of bodies,
/// framesets and frames are had by such elements only.
class CElement : public CDocumentPart<CElement, CHTMLElementNotImpl, CHTMLElement2NotImpl, CHTMLBodyElementNotImpl,
                                      CHTMLFrameSetElementNotImpl, CHTMLFrameBase2NotImpl>
{
    BEGIN_COM_MAP(CElement)
        COM_INTERFACE_ENTRY(IHTMLElement)
        COM_INTERFACE_ENTRY2(IDispatch, IHTMLElement)
        COM_INTERFACE_ENTRY(IHTMLElement2)
        COM_INTERFACE_ENTRY(IHTMLBodyElement)
        COM_INTERFACE_ENTRY(IHTMLFrameSetElement)
        COM_INTERFACE_ENTRY(IHTMLFrameBase2)
    END_COM_MAP()

public:
    /// An element by page.js. To be made by the document alone, which knows whether it has one already.
    CElement(CDocument& document, int nElement, std::string tag);
    ~CElement() override;

    int GetNumber() const { return m_nElement; }
    CDocument& GetOwner() const { return GetDocumentObject(); }
    /// The element's number when the object is one of the document's; 0 otherwise.
    static int NumberOf(IUnknown* pElement, const CDocument& document);

    STDMETHODIMP QueryInterface(REFIID iid, void** ppv) override;

    STDMETHODIMP setAttribute(BSTR bstrName, VARIANT vValue, LONG nFlags) override;
    STDMETHODIMP getAttribute(BSTR bstrName, LONG nFlags, VARIANT* pvValue) override;
    STDMETHODIMP put_className(BSTR bstr) override { return PutText("className", bstr); }
    STDMETHODIMP get_className(BSTR* pbstr) override { return GetText("className", pbstr); }
    STDMETHODIMP put_id(BSTR bstr) override { return PutText("id", bstr); }
    STDMETHODIMP get_id(BSTR* pbstr) override { return GetText("id", pbstr); }
    STDMETHODIMP get_tagName(BSTR* pbstr) override { return GetText("tagName", pbstr); }
    STDMETHODIMP put_title(BSTR bstr) override { return PutText("title", bstr); }
    STDMETHODIMP get_title(BSTR* pbstr) override { return GetText("title", pbstr); }
    STDMETHODIMP put_innerHTML(BSTR bstr) override { return PutText("innerHTML", bstr); }
    STDMETHODIMP get_innerHTML(BSTR* pbstr) override { return GetText("innerHTML", pbstr); }
    STDMETHODIMP put_innerText(BSTR bstr) override { return PutText("innerText", bstr); }
    STDMETHODIMP get_innerText(BSTR* pbstr) override { return GetText("innerText", pbstr); }
    STDMETHODIMP put_outerHTML(BSTR bstr) override { return PutText("outerHTML", bstr); }
    STDMETHODIMP get_outerHTML(BSTR* pbstr) override { return GetText("outerHTML", pbstr); }
    STDMETHODIMP get_outerText(BSTR* pbstr) override { return GetText("outerText", pbstr); }
    STDMETHODIMP get_offsetLeft(long* pn) override { return GetNumberOf("offsetLeft", pn); }
    STDMETHODIMP get_offsetTop(long* pn) override { return GetNumberOf("offsetTop", pn); }
    STDMETHODIMP get_offsetWidth(long* pn) override { return GetNumberOf("offsetWidth", pn); }
    STDMETHODIMP get_offsetHeight(long* pn) override { return GetNumberOf("offsetHeight", pn); }
    STDMETHODIMP get_parentElement(IHTMLElement** ppParent) override;
    STDMETHODIMP get_document(IDispatch** ppDocument) override;
    STDMETHODIMP get_style(IHTMLStyle** ppStyle) override { return GetStyle(false, ppStyle); }
    STDMETHODIMP get_all(IDispatch** ppAll) override;
    STDMETHODIMP get_children(IDispatch** ppChildren) override;
    STDMETHODIMP contains(IHTMLElement* pElement, VARIANT_BOOL* pbContains) override;
    STDMETHODIMP click() override;

    STDMETHODIMP get_runtimeStyle(IHTMLStyle** ppStyle) override { return GetStyle(true, ppStyle); }
    STDMETHODIMP get_clientWidth(long* pn) override { return GetNumberOf("clientWidth", pn); }
    STDMETHODIMP get_clientHeight(long* pn) override { return GetNumberOf("clientHeight", pn); }
    STDMETHODIMP get_scrollWidth(long* pn) override { return GetNumberOf("scrollWidth", pn); }
    STDMETHODIMP get_scrollHeight(long* pn) override { return GetNumberOf("scrollHeight", pn); }
    STDMETHODIMP put_scrollTop(long n) override { return PutNumber("scrollTop", n); }
    STDMETHODIMP get_scrollTop(long* pn) override { return GetNumberOf("scrollTop", pn); }
    STDMETHODIMP put_scrollLeft(long n) override { return PutNumber("scrollLeft", n); }
    STDMETHODIMP get_scrollLeft(long* pn) override { return GetNumberOf("scrollLeft", pn); }
    STDMETHODIMP getElementsByTagName(BSTR bstrTag, IHTMLElementCollection** ppElements) override;

    STDMETHODIMP get_rows(BSTR* pbstr) override { return GetText("rows", pbstr); }
    STDMETHODIMP get_cols(BSTR* pbstr) override { return GetText("cols", pbstr); }

    STDMETHODIMP get_contentWindow(IHTMLWindow2** ppWindow) override;

private:
    HRESULT GetText(const char* pszName, BSTR* pbstr) const { return AskText(pbstr, "getOf", m_nElement, pszName); }
    HRESULT GetNumberOf(const char* pszName, long* pn) const { return AskNumber(pn, "getOf", m_nElement, pszName); }
    HRESULT PutText(const char* pszName, BSTR bstr) const;
    HRESULT PutNumber(const char* pszName, long n) const { return Tell("putOf", m_nElement, pszName, n); }
    HRESULT GetStyle(bool bRuntime, IHTMLStyle** ppStyle);
    HRESULT GetCollection(std::string kind, IDispatch** ppElements);

    int m_nElement;
    std::string m_tag; ///< in capitals
};
