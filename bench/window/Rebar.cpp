#include "bench/window/Rebar.h"

#include "bench/window/ChevronMenu.h"
#include "bench/window/RegisteredBands.h"

#include <algorithm>

CRebar::~CRebar()
{
    CloseAll();
}

bool CRebar::Create(HWND hWndParent, IServiceProvider* pServices)
{
    constexpr DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | RBS_VARHEIGHT |
                              RBS_BANDBORDERS | CCS_NODIVIDER | CCS_NOPARENTALIGN | CCS_TOP;
    m_spServices = pServices;
    return CreateEx(WS_EX_TOOLWINDOW, REBARCLASSNAMEW, nullptr, dwStyle, RECT {0, 0, 100, 0}, hWndParent, ControlId);
}

void CRebar::LoadToolbars()
{
    for (const CLSID& clsid : GetRegisteredToolbars())
        ShowToolbar(clsid, true);
}

HRESULT CRebar::ShowToolbar(REFCLSID clsid, bool bShow)
{
    const auto found =
        std::ranges::find_if(m_bands, [&](const CEntry& entry) { return entry.band->GetClsid() == clsid; });
    if ((found != m_bands.end()) == bShow)
        return S_OK;
    if (!bShow)
    {
        Remove(found - m_bands.begin());
        return S_OK;
    }
    auto band = std::make_unique<CBand>();
    if (!band->Create(clsid, *this, m_hWnd, m_spServices.Get()) || !Insert(*band, ++m_dwLastBandId))
        return E_FAIL;
    band->Show(true);
    m_bands.push_back({m_dwLastBandId, std::move(band)});
    return S_OK;
}

bool CRebar::Shows(REFCLSID clsid) const
{
    return std::ranges::any_of(m_bands, [&](const CEntry& entry) { return entry.band->GetClsid() == clsid; });
}

void CRebar::CloseAll()
{
    while (!m_bands.empty())
        Remove(m_bands.size() - 1);
}

void CRebar::Remove(size_t nIndex)
{
    const CEntry entry = std::move(m_bands[nIndex]);
    m_bands.erase(m_bands.begin() + nIndex);
    entry.band->Show(false);
    SendMessageW(m_hWnd, RB_DELETEBAND, SendMessageW(m_hWnd, RB_IDTOINDEX, entry.dwBandId, 0), 0);
    entry.band->Close();
}

bool CRebar::Insert(CBand& band, DWORD dwBandId)
{
    REBARBANDINFOW layout = GetLayout(band, dwBandId);
    return SendMessageW(m_hWnd, RB_INSERTBANDW, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&layout)) != 0;
}

REBARBANDINFOW CRebar::GetLayout(CBand& band, DWORD dwBandId)
{
    const DESKBANDINFO info = band.GetInfo(dwBandId, DBIF_VIEWMODE_NORMAL);
    REBARBANDINFOW layout = {};
    layout.cbSize = sizeof layout;
    layout.fMask = RBBIM_ID | RBBIM_STYLE | RBBIM_CHILD | RBBIM_CHILDSIZE | RBBIM_SIZE | RBBIM_IDEALSIZE;
    layout.wID = dwBandId;
    layout.fStyle = RBBS_USECHEVRON | (info.dwModeFlags & DBIMF_BREAK ? RBBS_BREAK : 0);
    layout.hwndChild = band.GetWindow();
    layout.cxMinChild = info.ptMinSize.x;
    layout.cyMinChild = info.ptMinSize.y;
    layout.cyChild = info.ptMinSize.y;
    layout.cyMaxChild = info.ptMaxSize.y;
    layout.cyIntegral = info.ptIntegral.y;
    layout.cx = info.ptActual.x;
    layout.cxIdeal = GetContentWidth(layout.hwndChild);
    return layout;
}

int CRebar::GetHeight() const
{
    return m_bands.empty() ? 0 : static_cast<int>(SendMessageW(m_hWnd, RB_GETBARHEIGHT, 0, 0));
}

void CRebar::SetWidth(int cx)
{
    SetWindowPos(m_hWnd, nullptr, 0, 0, cx, GetHeight(), SWP_NOZORDER | SWP_NOACTIVATE);
}

void CRebar::OnChevron(const NMREBARCHEVRON& chevron)
{
    REBARBANDINFOW band = {};
    band.cbSize = sizeof band;
    band.fMask = RBBIM_CHILD;
    SendMessageW(m_hWnd, RB_GETBANDINFOW, chevron.uBand, reinterpret_cast<LPARAM>(&band));
    POINT point = {chevron.rc.right, chevron.rc.bottom};
    ClientToScreen(m_hWnd, &point);
    ShowChevronMenu(band.hwndChild, point);
}

bool CRebar::HasFocus()
{
    return std::ranges::any_of(m_bands, [](const CEntry& entry) { return entry.band->HasFocus(); });
}

bool CRebar::TakeFocus(MSG* pMsg)
{
    for (const CEntry& entry : m_bands)
    {
        entry.band->Activate(true, pMsg);
        if (entry.band->HasFocus())
            return true;
    }
    return false;
}

bool CRebar::TranslateKey(MSG* pMsg)
{
    const auto found = std::ranges::find_if(m_bands, [](const CEntry& entry) { return entry.band->HasFocus(); });
    return found != m_bands.end() && found->band->TranslateKey(pMsg);
}

void CRebar::OnBandFocusChange(bool bFocus)
{
    if (bFocus)
        return;
    for (const CEntry& entry : m_bands)
        entry.band->Activate(false, nullptr);
}

void CRebar::OnBandInfoChanged()
{
    for (const CEntry& entry : m_bands)
    {
        REBARBANDINFOW layout = GetLayout(*entry.band, entry.dwBandId);
        SendMessageW(m_hWnd, RB_SETBANDINFOW, SendMessageW(m_hWnd, RB_IDTOINDEX, entry.dwBandId, 0),
                     reinterpret_cast<LPARAM>(&layout));
    }
}
