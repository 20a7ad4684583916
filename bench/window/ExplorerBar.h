#pragma once

#include "bench/window/Band.h"
#include "bench/window/BandSite.h"
#include "framework/Wnd.h"

#include <windows.h>
#include <servprov.h>

#include <string>

/// The place of an Explorer bar beside a page: a title line with a close box, and the bar below it.
class CExplorerBar : public CWnd, private IBandSiteEvents
{
public:
    ~CExplorerBar() override;

    /// `bVertical` for the bar at the left, else the one at the bottom.
    bool Create(HWND hWndParent, bool bVertical);

    /// Shows the bar in place of the one that is shown; `nSize` in pixels, 0 for its own.
    HRESULT Open(REFCLSID clsid, IServiceProvider* pServices, int nSize);
    void Close();

    bool IsOpen() const { return m_bOpen; }
    bool Shows(REFCLSID clsid) const { return m_bOpen && m_band.GetClsid() == clsid; }
    /// Width at the left, height at the bottom; 0 while it is closed.
    int GetSize() const { return m_bOpen ? m_nSize : 0; }

    bool HasFocus() { return m_band.HasFocus(); }
    bool TranslateKey(MSG* pMsg) { return m_band.HasFocus() && m_band.TranslateKey(pMsg); }

private:
    DECLARE_MESSAGE_MAP()

    void OnPaint();
    void OnSize(UINT nType, int cx, int cy);
    void OnLButtonDown(UINT nFlags, POINT point);
    void OnBandFocusChange(bool bFocus) override;
    void OnBandInfoChanged() override;

    RECT GetCloseBox() const;
    void NotifyParent();

    CBand m_band;
    bool m_bVertical = false;
    bool m_bOpen = false;
    int m_nSize = 0;
    std::wstring m_strTitle;
};
