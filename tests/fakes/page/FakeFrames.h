#pragma once

#include "notimpl/HTMLFramesCollection2.h"
#include "notimpl/HTMLWindow2.h"
#include "tests/fakes/FakeObject.h"

#include <windows.h>
#include <mshtml.h>

#include <vector>

class CFakeHtmlDocument;

/// The window of a frame.
class CFakeFrameWindow : public CFakeObject<CFakeFrameWindow, CHTMLWindow2NotImpl>
{
    BEGIN_COM_MAP(CFakeFrameWindow)
        COM_INTERFACE_ENTRY(IHTMLWindow2)
        COM_INTERFACE_ENTRY(IHTMLFramesCollection2)
        COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()

public:
    /// A null document is answered as it stands.
    explicit CFakeFrameWindow(CFakeHtmlDocument* pDocument);
    ~CFakeFrameWindow();

    STDMETHODIMP get_document(IHTMLDocument2** ppDocument) override;

    /// Denies the access to the document from now on, as to one of another domain.
    void Deny() { m_bDenied = true; }

private:
    Microsoft::WRL::ComPtr<CFakeHtmlDocument> m_spDocument;
    bool m_bDenied = false;
};

using FrameWindows = std::vector<Microsoft::WRL::ComPtr<CFakeFrameWindow>>;

/// The windows of a document's frames. A null among them is answered as it stands.
class CFakeFramesCollection : public CFakeObject<CFakeFramesCollection, CHTMLFramesCollection2NotImpl>
{
    BEGIN_COM_MAP(CFakeFramesCollection)
        COM_INTERFACE_ENTRY(IHTMLFramesCollection2)
        COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()

public:
    explicit CFakeFramesCollection(FrameWindows windows)
        : CFakeObject("FramesCollection"), m_windows(std::move(windows))
    {
    }

    STDMETHODIMP get_length(LONG* pnLength) override;
    /// By number alone.
    STDMETHODIMP item(VARIANT* pvIndex, VARIANT* pvWindow) override;

private:
    FrameWindows m_windows;
};
