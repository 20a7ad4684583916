#pragma once

#include "bench/com/CountedObject.h"
#include "notimpl/DocHostUIHandler.h"
#include "notimpl/OleClientSite.h"

#include <windows.h>
#include <docobj.h>
#include <mshtmhst.h>
#include <ocidl.h>

class CWebBrowser;

/// The site of the documents in the browser: its answers stand wherever no other handler has taken its place.
class CClientSite
    : public CCountedObject<CClientSite, COleClientSiteNotImpl, CDocHostUIHandlerNotImpl, IOleCommandTarget>
{
    BEGIN_COM_MAP(CClientSite)
        COM_INTERFACE_ENTRY(IOleClientSite)
        COM_INTERFACE_ENTRY(IDocHostUIHandler)
        COM_INTERFACE_ENTRY(IOleCommandTarget)
    END_COM_MAP()

public:
    explicit CClientSite(CWebBrowser& browser) : m_pBrowser(&browser) {}

    /// The browser has been closed.
    void Detach() { m_pBrowser = nullptr; }

    STDMETHODIMP ShowContextMenu(DWORD dwKind, POINT* pPoint, IUnknown* pTarget, IDispatch* pObject) override;
    STDMETHODIMP GetHostInfo(DOCHOSTUIINFO* pInfo) override;
    STDMETHODIMP UpdateUI() override { return S_OK; }
    STDMETHODIMP EnableModeless(BOOL) override { return S_OK; }
    STDMETHODIMP OnDocWindowActivate(BOOL) override { return S_OK; }
    STDMETHODIMP TranslateAccelerator(LPMSG pMsg, const GUID* pGroup, DWORD nCommand) override;
    STDMETHODIMP GetExternal(IDispatch** ppExternal) override;
    STDMETHODIMP TranslateUrl(DWORD dwReserved, OLECHAR* pszUrl, OLECHAR** ppszUrl) override;

    STDMETHODIMP QueryStatus(const GUID* pGroup, ULONG cCommands, OLECMD* pCommands, OLECMDTEXT* pText) override;
    /// Shows script errors in the window's own box; knows no other command.
    STDMETHODIMP Exec(const GUID* pGroup, DWORD nCommand, DWORD nOption, VARIANT* pvIn, VARIANT* pvOut) override;

private:
    CWebBrowser* m_pBrowser;
};
