#pragma once

#include "notimpl/WebBrowser2.h"

#include <windows.h>
#include <exdisp.h>

#include <functional>
#include <string>

class CPage;
class CWebBrowser;
struct CNavigation;
struct CPageFrame;

/// What the browser of a page and the browsers of its frames have in common: IWebBrowser2 over one frame. Once the
/// frame has gone, every operation answers RPC_E_DISCONNECTED.
class CBrowserBase : public CWebBrowser2NotImpl
{
public:
    STDMETHODIMP Navigate(BSTR bstrUrl, VARIANT* pvFlags, VARIANT* pvTarget, VARIANT* pvPostData,
                          VARIANT* pvHeaders) override;
    STDMETHODIMP Navigate2(VARIANT* pvUrl, VARIANT* pvFlags, VARIANT* pvTarget, VARIANT* pvPostData,
                           VARIANT* pvHeaders) override;
    STDMETHODIMP Refresh() override;
    STDMETHODIMP Refresh2(VARIANT* pvLevel) override;
    STDMETHODIMP Stop() override;
    STDMETHODIMP get_Application(IDispatch** ppApplication) override;
    STDMETHODIMP get_Document(IDispatch** ppDocument) override;
    STDMETHODIMP get_TopLevelContainer(VARIANT_BOOL* pbTop) override;
    STDMETHODIMP get_LocationName(BSTR* pbstrName) override;
    STDMETHODIMP get_LocationURL(BSTR* pbstrUrl) override;
    STDMETHODIMP get_Busy(VARIANT_BOOL* pbBusy) override;
    STDMETHODIMP get_ReadyState(READYSTATE* peState) override;
    STDMETHODIMP get_HWND(SHANDLE_PTR* phWnd) override;

protected:
    ~CBrowserBase() = default;

    /// The browser of the whole page, null when the frame has gone.
    virtual CWebBrowser* GetBrowser() = 0;
    virtual const std::string& GetFrameId() const = 0;

private:
    CPage* GetPage();
    const CPageFrame* GetFrame();
    HRESULT Go(CNavigation navigation, long nFlags, const std::wstring& target);

    /// Does something with the page; RPC_E_DISCONNECTED when the frame has gone. No exception leaves it.
    HRESULT WithPage(const std::function<HRESULT(CPage& page)>& body);
};
