#pragma once

#include "framework/ComObject.h"
#include "framework/DispatchImpl.h"
#include "resources/Trelvix.h"

#include <windows.h>
#include <docobj.h>
#include <mshtmhst.h>
#include <mshtml.h>
#include <oleidl.h>
#include <wrl/client.h>

class CTrelvixWindow;

/// Stands between a document and the browser: hands on all that the document asks of its host and takes one thing for
/// itself, the command by which the browser shows a script error. One is made for each navigation and dies with the
/// document that holds it, which can be after the toolbar's end. Apartment threaded; aggregatable.
class CTrelvixMSHTMLUIHandler : public CComObjectRoot,
                                public IDispatchImpl<ITrelvixMSHTMLUIHandler>,
                                public IDocHostUIHandler,
                                public IOleCommandTarget
{
    BEGIN_COM_MAP(CTrelvixMSHTMLUIHandler)
        COM_INTERFACE_ENTRY(ITrelvixMSHTMLUIHandler)
        COM_INTERFACE_ENTRY(IDispatch)
        COM_INTERFACE_ENTRY(IDocHostUIHandler)
        COM_INTERFACE_ENTRY(IOleCommandTarget)
    END_COM_MAP()

public:
    /// Takes the document's own site as the default for everything. It must be both a UI handler and a command target,
    /// else the handler stays without a default.
    STDMETHODIMP SetOleClientSite(IOleClientSite* pClientSite) override;
    /// Takes the address of the CTrelvixWindow out of a VT_UNKNOWN variant. It is no COM object and is not counted.
    STDMETHODIMP SetToolbarWindow(VARIANT vTrelvixWindow) override;
    /// Must come before the window's end.
    STDMETHODIMP ClearToolbarWindow() override;

    STDMETHODIMP ShowContextMenu(DWORD dwID, POINT* ppt, IUnknown* pTarget, IDispatch* pObject) override;
    STDMETHODIMP GetHostInfo(DOCHOSTUIINFO* pInfo) override;
    STDMETHODIMP ShowUI(DWORD dwID, IOleInPlaceActiveObject* pActiveObject, IOleCommandTarget* pTarget,
                        IOleInPlaceFrame* pFrame, IOleInPlaceUIWindow* pDocument) override;
    STDMETHODIMP HideUI() override;
    STDMETHODIMP UpdateUI() override;
    STDMETHODIMP EnableModeless(BOOL bEnable) override;
    STDMETHODIMP OnDocWindowActivate(BOOL bActivate) override;
    STDMETHODIMP OnFrameWindowActivate(BOOL bActivate) override;
    STDMETHODIMP ResizeBorder(LPCRECT pRect, IOleInPlaceUIWindow* pWindow, BOOL bFrameWindow) override;
    STDMETHODIMP TranslateAccelerator(LPMSG pMsg, const GUID* pGroup, DWORD nCmdID) override;
    STDMETHODIMP GetOptionKeyPath(LPOLESTR* ppszKey, DWORD dw) override;
    STDMETHODIMP GetDropTarget(IDropTarget* pTarget, IDropTarget** ppTarget) override;
    STDMETHODIMP GetExternal(IDispatch** ppDispatch) override;
    STDMETHODIMP TranslateUrl(DWORD dwTranslate, LPWSTR pszUrlIn, LPWSTR* ppszUrlOut) override;
    STDMETHODIMP FilterDataObject(IDataObject* pObject, IDataObject** ppObject) override;

    STDMETHODIMP QueryStatus(const GUID* pGroup, ULONG nCommands, OLECMD* pCommands, OLECMDTEXT* pText) override;
    /// Offers a script error to the toolbar's items. What none of them takes, and every other command, goes to the
    /// default; E_FAIL without one.
    STDMETHODIMP Exec(const GUID* pGroup, DWORD nCmdID, DWORD nCmdexecopt, VARIANT* pvaIn, VARIANT* pvaOut) override;

protected:
    ~CTrelvixMSHTMLUIHandler() = default;

private:
    bool HandleScriptError(IHTMLDocument2* pDocument, VARIANT* pvaOut);

    Microsoft::WRL::ComPtr<IDocHostUIHandler> m_spDefaultDocHostUIHandler;
    Microsoft::WRL::ComPtr<IOleCommandTarget> m_spDefaultOleCommandTarget; ///< the same site
    CTrelvixWindow* m_pTrelvixWindow = nullptr;                            ///< not owned
};
