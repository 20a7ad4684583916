#include "tests/fakes/page/FakeFrames.h"

#include "tests/fakes/page/FakeHtmlDocument.h"

CFakeFrameWindow::CFakeFrameWindow(CFakeHtmlDocument* pDocument) : CFakeObject("FrameWindow"), m_spDocument(pDocument)
{
}

CFakeFrameWindow::~CFakeFrameWindow() = default;

STDMETHODIMP CFakeFrameWindow::get_document(IHTMLDocument2** ppDocument)
{
    return Call("get_document", ppDocument, [&] {
        if (m_bDenied)
            return E_ACCESSDENIED;
        return m_spDocument ? m_spDocument.CopyTo(ppDocument) : S_OK;
    });
}

STDMETHODIMP CFakeFramesCollection::get_length(LONG* pnLength)
{
    *pnLength = 0;
    return Call("get_length", [&] {
        *pnLength = static_cast<LONG>(m_windows.size());
        return S_OK;
    });
}

STDMETHODIMP CFakeFramesCollection::item(VARIANT* pvIndex, VARIANT* pvWindow)
{
    VariantInit(pvWindow);
    return Call("item", [&]() -> HRESULT {
        if (pvIndex->vt != VT_I4 || pvIndex->lVal < 0 || static_cast<size_t>(pvIndex->lVal) >= m_windows.size())
            return DISP_E_MEMBERNOTFOUND;
        pvWindow->vt = VT_DISPATCH;
        pvWindow->pdispVal = m_windows[pvIndex->lVal].Get();
        if (pvWindow->pdispVal != nullptr)
            pvWindow->pdispVal->AddRef();
        return S_OK;
    });
}
