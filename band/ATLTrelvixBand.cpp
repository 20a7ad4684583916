// The band protocol of CATLTrelvix: window, docking, sizes, focus and the empty persistence.

#include "band/ATLTrelvix.h"
#include "band/TrelvixWindow.h"
#include "framework/ComBoundary.h"
#include "settings/SettingsStore.h"

#include <utility>

namespace
{
constexpr LONG MinimumWidth = 250;
constexpr LONG BandHeight = 22;
constexpr LONG AnyWidth = -1;
} // namespace

STDMETHODIMP CATLTrelvix::GetWindow(HWND* phwnd)
{
    if (phwnd == nullptr)
        return E_INVALIDARG;
    *phwnd = m_hWnd;
    return S_OK;
}

STDMETHODIMP CATLTrelvix::ContextSensitiveHelp(BOOL fEnterMode)
{
    m_bEnterMode = fEnterMode;
    return S_OK;
}

STDMETHODIMP CATLTrelvix::ShowDW(BOOL fShow)
{
    m_bShow = fShow;
    ShowWindow(m_hWnd, fShow ? SW_SHOW : SW_HIDE);
    return S_OK;
}

STDMETHODIMP CATLTrelvix::CloseDW(DWORD)
{
    if (!IsWindow(m_hWnd))
        return S_OK;
    DestroyWindow(std::exchange(m_hWnd, nullptr));
    ReleaseToolbarWindow();
    return S_OK;
}

STDMETHODIMP CATLTrelvix::ResizeBorderDW(LPCRECT, IUnknown*, BOOL)
{
    return E_NOTIMPL;
}

STDMETHODIMP CATLTrelvix::GetBandInfo(DWORD dwBandID, DWORD dwViewMode, DESKBANDINFO* pdbi)
{
    m_dwBandID = dwBandID;
    m_dwViewMode = dwViewMode;
    if (pdbi == nullptr)
        return S_OK;
    if (pdbi->dwMask & DBIM_MINSIZE)
        pdbi->ptMinSize = {MinimumWidth, BandHeight};
    if (pdbi->dwMask & DBIM_MAXSIZE)
        pdbi->ptMaxSize = {AnyWidth, BandHeight};
    if (pdbi->dwMask & DBIM_INTEGRAL)
        pdbi->ptIntegral = {1, 1};
    if (pdbi->dwMask & DBIM_ACTUAL)
        pdbi->ptActual = {GetSystemMetrics(SM_CXFULLSCREEN), BandHeight};
    if (pdbi->dwMask & DBIM_TITLE)
        pdbi->wszTitle[0] = L'\0';
    if (pdbi->dwMask & DBIM_MODEFLAGS)
        pdbi->dwModeFlags = GetModeFlags();
    pdbi->dwMask &= ~DBIM_BKCOLOR;
    return S_OK;
}

DWORD CATLTrelvix::GetModeFlags()
{
    DWORD dwFlags = 0;
    ComBoundary([&] {
        CSettingsStore store(SettingsRoot);
        if (store.ReadInt(L"Options", L"ToolbarFirstTime") == 1 && !m_bBreakRow)
            return S_OK;
        dwFlags = DBIMF_BREAK;
        m_bBreakRow = TRUE;
        store.WriteInt(1, L"Options", L"ToolbarFirstTime");
        return S_OK;
    });
    return dwFlags;
}

STDMETHODIMP CATLTrelvix::UIActivateIO(BOOL fActivate, MSG* pMsg)
{
    return m_pToolbarWindow ? ComBoundary([&] { return m_pToolbarWindow->UIActivateIO(fActivate, pMsg); }) : S_FALSE;
}

STDMETHODIMP CATLTrelvix::HasFocusIO()
{
    return m_pToolbarWindow ? ComBoundary([&] { return m_pToolbarWindow->HasFocusIO(); }) : S_FALSE;
}

STDMETHODIMP CATLTrelvix::TranslateAcceleratorIO(MSG* pMsg)
{
    return m_pToolbarWindow ? ComBoundary([&] { return m_pToolbarWindow->TranslateAcceleratorIO(pMsg); }) : S_FALSE;
}

STDMETHODIMP CATLTrelvix::GetClassID(CLSID* pClassID)
{
    if (pClassID == nullptr)
        return E_POINTER;
    *pClassID = CLSID_ATLTrelvix;
    return S_OK;
}

STDMETHODIMP CATLTrelvix::IsDirty()
{
    return S_FALSE;
}

STDMETHODIMP CATLTrelvix::Load(IStream*)
{
    return S_OK;
}

STDMETHODIMP CATLTrelvix::Save(IStream*, BOOL)
{
    return S_OK;
}

STDMETHODIMP CATLTrelvix::GetSizeMax(ULARGE_INTEGER* pcbSize)
{
    if (pcbSize != nullptr)
        pcbSize->QuadPart = 0;
    return E_NOTIMPL;
}
