#pragma once

#include "notimpl/WebBrowser2.h"
#include "tests/fakes/FakeConnectionPoint.h"
#include "tests/fakes/FakeObject.h"

#include <windows.h>
#include <comutil.h>
#include <exdisp.h>
#include <ocidl.h>

#include <map>
#include <string>
#include <vector>

class CBrowserEvent;

/// The browser of a tab or of a frame: its document, its properties and what it was asked to do.
class CFakeWebBrowser2 : public CFakeObject<CFakeWebBrowser2, CWebBrowser2NotImpl, IConnectionPointContainer>
{
    BEGIN_COM_MAP(CFakeWebBrowser2)
        COM_INTERFACE_ENTRY(IWebBrowser2)
        COM_INTERFACE_ENTRY(IWebBrowserApp)
        COM_INTERFACE_ENTRY(IWebBrowser)
        COM_INTERFACE_ENTRY(IDispatch)
        COM_INTERFACE_ENTRY(IConnectionPointContainer)
    END_COM_MAP()

public:
    struct CNavigation
    {
        std::wstring strUrl;
        _variant_t vFlags;
        bool bOtherArguments; ///< a target, post data or headers were given
    };
    struct CBrowserBar
    {
        _variant_t vClsid;
        _variant_t vShow;
        bool bSize; ///< a size was given
    };

    CFakeWebBrowser2() : CFakeObject("WebBrowser"), m_spConnectionPoint(MakeFake<CFakeConnectionPoint>()) {}

    STDMETHODIMP Navigate(BSTR bstrUrl, VARIANT* pFlags, VARIANT* pTarget, VARIANT* pPostData,
                          VARIANT* pHeaders) override;
    STDMETHODIMP get_Document(IDispatch** ppDocument) override;
    STDMETHODIMP get_LocationURL(BSTR* pbstrUrl) override;
    STDMETHODIMP get_HWND(SHANDLE_PTR* phWnd) override;
    STDMETHODIMP get_ReadyState(READYSTATE* peReadyState) override;
    STDMETHODIMP PutProperty(BSTR bstrName, VARIANT vValue) override;
    STDMETHODIMP GetProperty(BSTR bstrName, VARIANT* pvValue) override;
    STDMETHODIMP ShowBrowserBar(VARIANT* pvClsid, VARIANT* pvShow, VARIANT* pvSize) override;

    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** ppEnum) override;
    STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint** ppPoint) override;

    /// Tells the event to all sinks.
    void Fire(CBrowserEvent& event);

    /// The browser's own IDispatch, which events name the frame with; borrowed.
    IDispatch* AsFrame() { return static_cast<IDispatch*>(this); }
    CFakeConnectionPoint& GetConnectionPoint() { return *m_spConnectionPoint.Get(); }

    Microsoft::WRL::ComPtr<IDispatch> m_spDocument; ///< null: get_Document succeeds without one
    HRESULT m_hrDocument = S_OK;                    ///< a failure: get_Document gives none
    std::wstring m_strUrl = L"about:blank";
    HWND m_hWnd = nullptr;
    READYSTATE m_eReadyState = READYSTATE_COMPLETE;
    std::map<std::wstring, _variant_t> m_properties;
    std::vector<CNavigation> m_navigations;
    std::vector<CBrowserBar> m_browserBars;

private:
    Microsoft::WRL::ComPtr<CFakeConnectionPoint> m_spConnectionPoint;
};
