#pragma once

#include "bench/com/DocumentPart.h"
#include "notimpl/HTMLWindow2.h"

#include <windows.h>
#include <mshtml.h>
#include <servprov.h>

/// The window of a document, and the collection of its frames in document order. One of another origin gives its
/// browser and its relatives, but neither its document nor its name.
class CWindow : public CDocumentPart<CWindow, CHTMLWindow2NotImpl, IServiceProvider>
{
    BEGIN_COM_MAP(CWindow)
        COM_INTERFACE_ENTRY(IHTMLWindow2)
        COM_INTERFACE_ENTRY(IHTMLFramesCollection2)
        COM_INTERFACE_ENTRY2(IDispatch, IHTMLWindow2)
        COM_INTERFACE_ENTRY(IServiceProvider)
    END_COM_MAP()

public:
    /// To be made by the document alone, which knows whether it has one already.
    explicit CWindow(CDocument& document) : CDocumentPart(document) {}
    ~CWindow() override;

    /// By index or name.
    STDMETHODIMP item(VARIANT* pvIndex, VARIANT* pvWindow) override;
    STDMETHODIMP get_length(long* pnLength) override;

    STDMETHODIMP get_frames(IHTMLFramesCollection2** ppFrames) override;
    STDMETHODIMP get_document(IHTMLDocument2** ppDocument) override;
    STDMETHODIMP get_name(BSTR* pbstrName) override;
    STDMETHODIMP get_parent(IHTMLWindow2** ppParent) override;
    STDMETHODIMP get_self(IHTMLWindow2** ppWindow) override;
    STDMETHODIMP get_window(IHTMLWindow2** ppWindow) override { return get_self(ppWindow); }
    STDMETHODIMP get_top(IHTMLWindow2** ppTop) override;
    /// The script error that is being reported; null at any other time.
    STDMETHODIMP get_event(IHTMLEventObj** ppEvent) override;

    /// The browser of the frame, for the service of a browser.
    STDMETHODIMP QueryService(REFGUID service, REFIID iid, void** ppv) override;

private:
    /// S_OK when the document is on show and may be looked into.
    HRESULT CheckAccess() const;
};
