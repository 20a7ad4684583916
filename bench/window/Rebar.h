#pragma once

#include "bench/window/Band.h"
#include "bench/window/BandSite.h"
#include "framework/Wnd.h"

#include <windows.h>
#include <commctrl.h>
#include <servprov.h>
#include <wrl/client.h>

#include <memory>
#include <vector>

/// The rows of toolbars above a page, each a registered band.
class CRebar : public CWnd, private IBandSiteEvents
{
public:
    /// Number of the control in its notifications.
    static constexpr UINT ControlId = 0xA005;

    ~CRebar() override;

    bool Create(HWND hWndParent, IServiceProvider* pServices);

    /// Creates and shows all toolbars that are registered with the browser.
    void LoadToolbars();
    /// Creates and shows one, or closes it; S_OK also when nothing was to be done.
    HRESULT ShowToolbar(REFCLSID clsid, bool bShow);
    void CloseAll();
    bool Shows(REFCLSID clsid) const;

    /// The height of all rows, 0 when there is no band.
    int GetHeight() const;
    void SetWidth(int cx);

    /// The menu of the buttons for which a band is too narrow, for the rebar's RBN_CHEVRONPUSHED.
    void OnChevron(const NMREBARCHEVRON& chevron);

    bool HasFocus();
    /// Gives the keyboard to the bands because of the key; false when none took it.
    bool TakeFocus(MSG* pMsg);
    /// True when the band that has the focus took the key for itself.
    bool TranslateKey(MSG* pMsg);

private:
    void OnBandFocusChange(bool bFocus) override;
    void OnBandInfoChanged() override;

    bool Insert(CBand& band, DWORD dwBandId);
    REBARBANDINFOW GetLayout(CBand& band, DWORD dwBandId);
    void Remove(size_t nIndex);

    struct CEntry
    {
        DWORD dwBandId;
        std::unique_ptr<CBand> band;
    };

    Microsoft::WRL::ComPtr<IServiceProvider> m_spServices;
    std::vector<CEntry> m_bands;
    DWORD m_dwLastBandId = 0;
};
