#pragma once

#include "bench/window/BandSite.h"

#include <windows.h>
#include <shlobj.h>
#include <wrl/client.h>

/// A registered band from its creation to its end, as a browser deals with it.
class CBand
{
public:
    CBand() = default;
    ~CBand();
    CBand(const CBand&) = delete;
    CBand& operator=(const CBand&) = delete;

    /// Creates the band and gives it its site. False when it isn't there or refuses the site.
    bool Create(REFCLSID clsid, IBandSiteEvents& host, HWND hWnd, IServiceProvider* pServices);

    /// Hides it and takes its site away. Nothing happens the second time.
    void Close();

    const CLSID& GetClsid() const { return m_clsid; }
    HWND GetWindow() const;
    void Show(bool bShow);

    /// Asks for everything that a host lays a band out by; on failure all sizes are 0.
    DESKBANDINFO GetInfo(DWORD dwBandId, DWORD dwViewMode);

    bool HasFocus();
    /// Gives the keyboard to the band, or tells it that it has lost it. The message is what caused it.
    void Activate(bool bActivate, MSG* pMsg);
    /// True when the band took the key for itself.
    bool TranslateKey(MSG* pMsg);

private:
    CLSID m_clsid = {};
    Microsoft::WRL::ComPtr<IDeskBand> m_spBand;
    Microsoft::WRL::ComPtr<IInputObject> m_spInput; ///< null when the band has no use for keys
    Microsoft::WRL::ComPtr<CBandSite> m_spSite;
};
