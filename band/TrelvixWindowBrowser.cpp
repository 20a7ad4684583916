#include "band/ATLTrelvix.h"
#include "band/InfoBarHelper.h"
#include "band/TrelvixWindow.h"
#include "framework/ComQuery.h"
#include "framework/HostVersion.h"
#include "resources/Trelvix.h"

#include <windows.h>
#include <comutil.h>
#include <mshtmhst.h>
#include <mshtml.h>

using Microsoft::WRL::ComPtr;

namespace
{
_variant_t GetBrowserProperty(IWebBrowser2* pBrowser, const wchar_t* pszName)
{
    _variant_t value;
    if (pBrowser != nullptr && FAILED(pBrowser->GetProperty(_bstr_t(pszName), &value)))
        value.Clear();
    return value;
}

ComPtr<IOleClientSite> GetClientSite(IHTMLDocument2* pDocument)
{
    const ComPtr<IOleObject> spObject = QueryFor<IOleObject>(pDocument);
    ComPtr<IOleClientSite> spSite;
    if (!spObject || FAILED(spObject->GetClientSite(&spSite)))
        return nullptr;
    return spSite;
}

bool SetUIHandler(IDispatch* pDocument, IUnknown* pHandler)
{
    const ComPtr<ICustomDoc> spDocument = QueryFor<ICustomDoc>(pDocument);
    const ComPtr<IDocHostUIHandler> spHandler = QueryFor<IDocHostUIHandler>(pHandler);
    return spDocument && spHandler && SUCCEEDED(spDocument->SetUIHandler(spHandler.Get()));
}
} // namespace

bool CTrelvixWindow::NavigateTo(const wchar_t* pszUrl, bool bNew)
{
    const _bstr_t url(pszUrl);
    if (GetWebBrowser() == nullptr)
        return false;
    const auto spThis = Hold();
    const long nNewFlags = IsIE7OrLater() ? navOpenInNewTab : navOpenInNewWindow;
    _variant_t flags(bNew ? nNewFlags : 0L);
    if (SUCCEEDED(GetWebBrowser()->Navigate(url, &flags, nullptr, nullptr, nullptr)) || !bNew)
        return true;
    if (!IsIE7OrLater())
        return false;
    flags = static_cast<long>(navOpenInNewWindow);
    return SUCCEEDED(GetWebBrowser()->Navigate(url, &flags, nullptr, nullptr, nullptr));
}

bool CTrelvixWindow::InstallUIHandler()
{
    if (GetWebBrowser() == nullptr)
        return false;
    m_pUIHandler.Reset();
    if (FAILED(CoCreateInstance(CLSID_TrelvixMSHTMLUIHandler, nullptr, CLSCTX_ALL, IID_PPV_ARGS(&m_pUIHandler))))
        return false;
    // The browser may re-enter from here on and leave another handler, or none, in the field.
    const ComPtr<ITrelvixMSHTMLUIHandler> spHandler = m_pUIHandler;
    ComPtr<IDispatch> spDocument;
    if (FAILED(GetWebBrowser()->get_Document(&spDocument)))
        return false;
    if (PrepareUIHandler(*spHandler.Get(), spDocument.Get()))
        return SetUIHandler(spDocument.Get(), spHandler.Get());
    if (m_pUIHandler.Get() == spHandler.Get())
        m_pUIHandler.Reset();
    return false;
}

bool CTrelvixWindow::PrepareUIHandler(ITrelvixMSHTMLUIHandler& handler, IDispatch* pDocument)
{
    const ComPtr<IHTMLDocument2> spDocument = QueryFor<IHTMLDocument2>(pDocument);
    const ComPtr<IOleClientSite> spSite = spDocument ? GetClientSite(spDocument.Get()) : nullptr;
    if (!spSite || FAILED(handler.SetOleClientSite(spSite.Get())))
        return false;
    // Only the handler that the window holds is told of the window's end.
    if (m_pUIHandler.Get() != &handler || m_hWnd == nullptr)
        return false;
    // The window's address in the disguise of a COM object; the handler reads it back as what it is.
    VARIANT window = {};
    window.vt = VT_UNKNOWN;
    window.punkVal = reinterpret_cast<IUnknown*>(this);
    handler.SetToolbarWindow(window);
    return true;
}

bool CTrelvixWindow::IsInfoBarOpen()
{
    const _variant_t helper = GetBrowserProperty(GetWebBrowser(), InfoBarHelperProperty);
    if (helper.vt != VT_I8 || helper.llVal == 0)
        return false;
    BYTE bOpen = FALSE;
    return SUCCEEDED(reinterpret_cast<IInfoBarHelper*>(helper.llVal)->IsOpen(&bOpen)) && bOpen != FALSE;
}

bool CTrelvixWindow::GetInfoBarRect(RECT* pRect)
{
    SetRectEmpty(pRect);
    const _variant_t infoBar = GetBrowserProperty(m_pBand ? m_pBand->GetWebBrowser() : nullptr, InfoBarClass);
    ComPtr<IOleWindow> spWindow;
    HWND hWnd = nullptr;
    if (infoBar.vt != VT_UNKNOWN || infoBar.punkVal == nullptr ||
        FAILED(infoBar.punkVal->QueryInterface(IID_PPV_ARGS(&spWindow))) || FAILED(spWindow->GetWindow(&hWnd)))
        return false;
    return IsWindowVisible(hWnd) && GetWindowRect(hWnd, pRect);
}

void CTrelvixWindow::ShowInfoBar()
{
    if (GetWebBrowser() == nullptr)
        return;
    _variant_t infoBar(InfoBarClass);
    _variant_t show(true);
    GetWebBrowser()->ShowBrowserBar(&infoBar, &show, nullptr);
}
