#pragma once

#include "notimpl/HTMLDocument2.h"
#include "notimpl/MarkupContainer.h"
#include "notimpl/MarkupServices.h"
#include "tests/fakes/FakeObject.h"
#include "tests/fakes/page/FakeFrames.h"
#include "tests/fakes/page/PageMarkup.h"

#include <windows.h>
#include <mshtml.h>

#include <memory>
#include <string>
#include <vector>

/// A document with text, elements and frames, and the services that change them.
class CFakeHtmlDocument
    : public CFakeObject<CFakeHtmlDocument, CHTMLDocument2NotImpl, CMarkupServicesNotImpl, CMarkupContainerNotImpl>
{
    BEGIN_COM_MAP(CFakeHtmlDocument)
        COM_INTERFACE_ENTRY(IHTMLDocument2)
        COM_INTERFACE_ENTRY(IHTMLDocument)
        COM_INTERFACE_ENTRY(IDispatch)
        COM_INTERFACE_ENTRY(IMarkupServices)
        COM_INTERFACE_ENTRY(IMarkupContainer)
    END_COM_MAP()

public:
    /// The source is that of a BODY or FRAMESET, or of a body's content.
    explicit CFakeHtmlDocument(const std::wstring& strSource);

    /// The body, or the outermost frameset; null when there is neither.
    STDMETHODIMP get_body(IHTMLElement** ppBody) override;
    STDMETHODIMP get_frames(IHTMLFramesCollection2** ppFrames) override;

    STDMETHODIMP CreateMarkupPointer(IMarkupPointer** ppPointer) override;
    /// Knows the tags that are asked for.
    STDMETHODIMP CreateElement(ELEMENT_TAG_ID eTag, OLECHAR* pszAttributes, IHTMLElement** ppElement) override;
    STDMETHODIMP InsertElement(IHTMLElement* pElement, IMarkupPointer* pStart, IMarkupPointer* pEnd) override;

    /// Appends a frame; the document owns its window, and the window its document.
    CFakeFrameWindow& AddFrame(CFakeHtmlDocument* pDocument);

    const std::shared_ptr<CPageMarkup>& GetMarkup() const { return m_spMarkup; }
    /// The text between the tags of each element of a kind, in order.
    std::vector<std::wstring> GetTextsOf(const std::wstring& strTag) const;
    /// The text of the body.
    std::wstring GetText() const;
    /// The body or the outermost frameset; null when there is neither.
    std::shared_ptr<CMarkupElement> GetRoot() const;

    FrameWindows m_windows;

private:
    std::shared_ptr<CPageMarkup> m_spMarkup;
};
