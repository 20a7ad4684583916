#include "bench/com/BrowserBase.h"

#include "bench/com/BrowserWindow.h"
#include "bench/com/Variants.h"
#include "bench/com/WebBrowser.h"
#include "bench/engine/Page.h"
#include "framework/ComBoundary.h"

#include <comutil.h>

namespace
{
READYSTATE GetReadyState(ELoadState eState)
{
    switch (eState)
    {
    case ELoadState::Loading:
        return READYSTATE_LOADING;
    case ELoadState::Interactive:
        return READYSTATE_INTERACTIVE;
    default:
        return READYSTATE_COMPLETE;
    }
}
} // namespace

CPage* CBrowserBase::GetPage()
{
    CWebBrowser* const pBrowser = GetBrowser();
    return pBrowser && pBrowser->GetPage().IsOpen() ? &pBrowser->GetPage() : nullptr;
}

const CPageFrame* CBrowserBase::GetFrame()
{
    CPage* const pPage = GetPage();
    return pPage ? pPage->GetFrames().Find(GetFrameId()) : nullptr;
}

HRESULT CBrowserBase::WithPage(const std::function<HRESULT(CPage& page)>& body)
{
    return ComBoundary([&] { return GetFrame() ? body(*GetPage()) : RPC_E_DISCONNECTED; });
}

STDMETHODIMP CBrowserBase::Navigate(BSTR bstrUrl, VARIANT* pvFlags, VARIANT* pvTarget, VARIANT* pvPostData,
                                    VARIANT* pvHeaders)
{
    if (SysStringLen(bstrUrl) == 0)
        return E_INVALIDARG;
    return ComBoundary([&] {
        return Go({.strFrameId = GetFrameId(),
                   .strUrl = GetString(bstrUrl),
                   .strPostData = GetOptionalBytes(pvPostData),
                   .strHeaders = GetOptionalText(pvHeaders)},
                  GetOptionalNumber(pvFlags), GetOptionalText(pvTarget));
    });
}

STDMETHODIMP CBrowserBase::Navigate2(VARIANT* pvUrl, VARIANT* pvFlags, VARIANT* pvTarget, VARIANT* pvPostData,
                                     VARIANT* pvHeaders)
{
    return ComBoundary(
        [&] { return Navigate(_bstr_t(GetOptionalText(pvUrl).c_str()), pvFlags, pvTarget, pvPostData, pvHeaders); });
}

HRESULT CBrowserBase::Go(CNavigation navigation, long nFlags, const std::wstring& target)
{
    CPage* const pPage = GetPage();
    if (pPage == nullptr)
        return RPC_E_DISCONNECTED;
    IBrowserWindow& window = *GetBrowser()->GetWindow();
    if (nFlags & (navOpenInNewTab | navOpenInBackgroundTab))
        window.OpenTab(navigation.strUrl);
    else if (nFlags & navOpenInNewWindow)
        window.OpenWindow(navigation.strUrl);
    else if (const CPageFrame* const pTarget = pPage->GetFrames().FindTarget(navigation.strFrameId, target))
    {
        navigation.strFrameId = pTarget->strId;
        return pPage->Navigate(navigation) ? S_OK : HRESULT_FROM_WIN32(ERROR_CANCELLED);
    }
    else
        window.OpenWindow(navigation.strUrl);
    return S_OK;
}

STDMETHODIMP CBrowserBase::Refresh()
{
    return WithPage([this](CPage& page) {
        page.ReloadFrame(GetFrameId());
        return S_OK;
    });
}

STDMETHODIMP CBrowserBase::Refresh2(VARIANT*)
{
    return Refresh();
}

STDMETHODIMP CBrowserBase::Stop()
{
    return WithPage([](CPage& page) {
        page.Stop();
        return S_OK;
    });
}

STDMETHODIMP CBrowserBase::get_Application(IDispatch** ppApplication)
{
    if (ppApplication == nullptr)
        return E_POINTER;
    *ppApplication = nullptr;
    CWebBrowser* const pBrowser = GetBrowser();
    return pBrowser ? pBrowser->QueryInterface(IID_PPV_ARGS(ppApplication)) : RPC_E_DISCONNECTED;
}

STDMETHODIMP CBrowserBase::get_Document(IDispatch** ppDocument)
{
    if (ppDocument == nullptr)
        return E_POINTER;
    *ppDocument = nullptr;
    return WithPage([&](CPage&) { return GetBrowser()->GetDocument(GetFrameId(), ppDocument); });
}

STDMETHODIMP CBrowserBase::get_TopLevelContainer(VARIANT_BOOL* pbTop)
{
    if (pbTop == nullptr)
        return E_POINTER;
    *pbTop = VARIANT_FALSE;
    return WithPage([&](CPage& page) {
        *pbTop = page.GetFrames().IsTop(GetFrameId()) ? VARIANT_TRUE : VARIANT_FALSE;
        return S_OK;
    });
}

STDMETHODIMP CBrowserBase::get_LocationName(BSTR* pbstrName)
{
    if (pbstrName == nullptr)
        return E_POINTER;
    *pbstrName = nullptr;
    return WithPage([&](CPage& page) {
        const Json title = page.Evaluate(GetFrameId(), L"document.title");
        const std::wstring name = title.is_string() ? FromUtf8(title.get<std::string>()) : std::wstring();
        return name.empty() ? get_LocationURL(pbstrName) : CopyText(name, pbstrName);
    });
}

STDMETHODIMP CBrowserBase::get_LocationURL(BSTR* pbstrUrl)
{
    if (pbstrUrl == nullptr)
        return E_POINTER;
    *pbstrUrl = nullptr;
    const CPageFrame* const pFrame = GetFrame();
    return pFrame ? CopyText(pFrame->strUrl, pbstrUrl) : RPC_E_DISCONNECTED;
}

STDMETHODIMP CBrowserBase::get_Busy(VARIANT_BOOL* pbBusy)
{
    if (pbBusy == nullptr)
        return E_POINTER;
    const CPageFrame* const pFrame = GetFrame();
    *pbBusy = pFrame && pFrame->bDownloading ? VARIANT_TRUE : VARIANT_FALSE;
    return pFrame ? S_OK : RPC_E_DISCONNECTED;
}

STDMETHODIMP CBrowserBase::get_ReadyState(READYSTATE* peState)
{
    if (peState == nullptr)
        return E_POINTER;
    const CPageFrame* const pFrame = GetFrame();
    *peState = pFrame ? ::GetReadyState(pFrame->eState) : READYSTATE_UNINITIALIZED;
    return pFrame ? S_OK : RPC_E_DISCONNECTED;
}

STDMETHODIMP CBrowserBase::get_HWND(SHANDLE_PTR* phWnd)
{
    if (phWnd == nullptr)
        return E_POINTER;
    CWebBrowser* const pBrowser = GetBrowser();
    *phWnd = pBrowser ? reinterpret_cast<SHANDLE_PTR>(pBrowser->GetWindow()->GetFrameWindow()) : 0;
    return pBrowser ? S_OK : RPC_E_DISCONNECTED;
}
