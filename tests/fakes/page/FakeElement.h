#pragma once

#include "notimpl/HTMLBodyElement.h"
#include "notimpl/HTMLElement.h"
#include "notimpl/HTMLElement2.h"
#include "notimpl/HTMLFrameSetElement.h"
#include "tests/fakes/FakeObject.h"
#include "tests/fakes/page/PageMarkup.h"

#include <windows.h>
#include <mshtml.h>

/// An element of a page, which it keeps alive. Body and frameset have their interfaces, other elements neither.
class CFakeElement : public CFakeObject<CFakeElement, CHTMLElementNotImpl, CHTMLElement2NotImpl,
                                        CHTMLBodyElementNotImpl, CHTMLFrameSetElementNotImpl>
{
    BEGIN_COM_MAP(CFakeElement)
        COM_INTERFACE_ENTRY(IHTMLElement)
        COM_INTERFACE_ENTRY2(IDispatch, IHTMLElement)
        COM_INTERFACE_ENTRY(IHTMLElement2)
        COM_INTERFACE_ENTRY(IHTMLBodyElement)
        COM_INTERFACE_ENTRY(IHTMLFrameSetElement)
    END_COM_MAP()

public:
    CFakeElement(std::shared_ptr<CPageMarkup> spMarkup, std::shared_ptr<CMarkupElement> spElement);

    /// The elements inside this one, as they are when the collection is asked.
    STDMETHODIMP get_all(IDispatch** ppAll) override;
    STDMETHODIMP get_id(BSTR* pbstrId) override;
    STDMETHODIMP get_tagName(BSTR* pbstrTag) override;
    STDMETHODIMP get_innerText(BSTR* pbstrText) override;
    STDMETHODIMP get_style(IHTMLStyle** ppStyle) override;
    STDMETHODIMP get_runtimeStyle(IHTMLStyle** ppStyle) override;

    const std::shared_ptr<CMarkupElement>& GetElement() const { return m_spElement; }
    const std::shared_ptr<CPageMarkup>& GetMarkup() const { return m_spMarkup; }

private:
    std::shared_ptr<CPageMarkup> m_spMarkup;
    std::shared_ptr<CMarkupElement> m_spElement;
};
