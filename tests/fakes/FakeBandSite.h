#pragma once

#include "tests/fakes/FakeObject.h"
#include "tests/fakes/FakeWebBrowser2.h"

#include <windows.h>
#include <ocidl.h>
#include <servprov.h>
#include <shlobj.h>

#include <vector>

/// The site that a browser gives to a band: its window, its browser and the talk about the focus. `Lack` takes one of
/// the three facets away.
class CFakeBandSite : public CFakeObject<CFakeBandSite, IInputObjectSite, IOleWindow, IServiceProvider>
{
    BEGIN_COM_MAP(CFakeBandSite)
        COM_INTERFACE_ENTRY(IInputObjectSite)
        COM_INTERFACE_ENTRY(IOleWindow)
        COM_INTERFACE_ENTRY(IServiceProvider)
    END_COM_MAP()

public:
    struct CFocusChange
    {
        IUnknown* pBand; ///< not owned, for comparison
        bool bFocus;
    };

    /// Neither window nor browser needs to be there.
    CFakeBandSite(HWND hWnd, CFakeWebBrowser2* pBrowser) : CFakeObject("BandSite"), m_hWnd(hWnd), m_spBrowser(pBrowser)
    {
    }

    STDMETHODIMP OnFocusChangeIS(IUnknown* pBand, BOOL bFocus) override;
    STDMETHODIMP GetWindow(HWND* phWnd) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL bEnterMode) override;
    /// Answers for the service IWebBrowserApp alone.
    STDMETHODIMP QueryService(REFGUID service, REFIID iid, void** ppv) override;

    HWND m_hWnd;
    Microsoft::WRL::ComPtr<CFakeWebBrowser2> m_spBrowser;
    std::vector<CFocusChange> m_focusChanges;
};
