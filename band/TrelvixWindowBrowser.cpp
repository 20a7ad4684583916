#include "band/ATLTrelvix.h"
#include "band/InfoBarHelper.h"
#include "band/TrelvixWindow.h"
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
    ComPtr<IOleObject> spObject;
    ComPtr<IOleClientSite> spSite;
    if (SUCCEEDED(pDocument->QueryInterface(IID_PPV_ARGS(&spObject))) && FAILED(spObject->GetClientSite(&spSite)))
        return nullptr;
    return spSite;
}
} // namespace

bool CTrelvixWindow::NavigateTo(const wchar_t* pszUrl, bool bNew)
{
    const _bstr_t url(pszUrl);
    if (GetWebBrowser() == nullptr)
        return false;
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
    ComPtr<IDispatch> spDocument;
    if (FAILED(GetWebBrowser()->get_Document(&spDocument)))
        return false;
    return AttachUIHandler(spDocument.Get());
}

bool CTrelvixWindow::AttachUIHandler(IDispatch* pDocument)
{
    ComPtr<IHTMLDocument2> spDocument;
    if (pDocument != nullptr)
        pDocument->QueryInterface(IID_PPV_ARGS(&spDocument));
    const ComPtr<IOleClientSite> spSite = spDocument ? GetClientSite(spDocument.Get()) : nullptr;
    if (spSite == nullptr || FAILED(m_pUIHandler->SetOleClientSite(spSite.Get())))
    {
        m_pUIHandler.Reset();
        return false;
    }
    // The window's address in the disguise of a COM object; the handler reads it back as what it is.
    VARIANT window = {};
    window.vt = VT_UNKNOWN;
    window.punkVal = reinterpret_cast<IUnknown*>(this);
    m_pUIHandler->SetToolbarWindow(window);
    ComPtr<ICustomDoc> spCustomDocument;
    ComPtr<IDocHostUIHandler> spHandler;
    return SUCCEEDED(spDocument.As(&spCustomDocument)) && SUCCEEDED(m_pUIHandler.As(&spHandler)) &&
           SUCCEEDED(spCustomDocument->SetUIHandler(spHandler.Get()));
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
