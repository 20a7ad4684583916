#pragma once

#include "bench/com/CountedObject.h"

#include <windows.h>
#include <docobj.h>
#include <ocidl.h>
#include <servprov.h>
#include <shlobj.h>
#include <wrl/client.h>

/// What a band tells its host through its site, on the thread of the window.
class IBandSiteEvents
{
public:
    /// The band got the keyboard, or lost it.
    virtual void OnBandFocusChange(bool bFocus) = 0;
    /// The band wants to be asked for its sizes anew.
    virtual void OnBandInfoChanged() = 0;

protected:
    ~IBandSiteEvents() = default;
};

/// The site of one band: its window, the browser's services and what the band says of itself.
class CBandSite : public CCountedObject<CBandSite, IInputObjectSite, IOleWindow, IServiceProvider, IOleCommandTarget>
{
    BEGIN_COM_MAP(CBandSite)
        COM_INTERFACE_ENTRY(IInputObjectSite)
        COM_INTERFACE_ENTRY(IOleWindow)
        COM_INTERFACE_ENTRY(IServiceProvider)
        COM_INTERFACE_ENTRY(IOleCommandTarget)
    END_COM_MAP()

public:
    /// `hWnd` is the window that bands make theirs in, `pServices` the browser.
    CBandSite(IBandSiteEvents& host, HWND hWnd, IServiceProvider* pServices)
        : m_pHost(&host), m_hWnd(hWnd), m_spServices(pServices)
    {
    }

    /// The host goes; the band may hold the site longer.
    void Detach() { m_pHost = nullptr; }

    STDMETHODIMP OnFocusChangeIS(IUnknown* pBand, BOOL bFocus) override;
    STDMETHODIMP GetWindow(HWND* phWnd) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL bEnterMode) override;
    STDMETHODIMP QueryService(REFGUID service, REFIID iid, void** ppv) override;
    STDMETHODIMP QueryStatus(const GUID* pGroup, ULONG cCommands, OLECMD* pCommands, OLECMDTEXT* pText) override;
    STDMETHODIMP Exec(const GUID* pGroup, DWORD nCommand, DWORD nOption, VARIANT* pvIn, VARIANT* pvOut) override;

private:
    IBandSiteEvents* m_pHost;
    HWND m_hWnd;
    Microsoft::WRL::ComPtr<IServiceProvider> m_spServices;
};
