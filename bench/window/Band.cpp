#include "bench/window/Band.h"

#include "framework/ComQuery.h"

using Microsoft::WRL::ComPtr;

CBand::~CBand()
{
    Close();
}

bool CBand::Create(REFCLSID clsid, IBandSiteEvents& host, HWND hWnd, IServiceProvider* pServices)
{
    m_clsid = clsid;
    if (FAILED(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&m_spBand))))
        return false;
    m_spInput = QueryFor<IInputObject>(m_spBand.Get());
    m_spSite = MakeObject<CBandSite>(host, hWnd, pServices);
    const ComPtr<IObjectWithSite> spSited = QueryFor<IObjectWithSite>(m_spBand.Get());
    if (spSited && SUCCEEDED(spSited->SetSite(static_cast<IInputObjectSite*>(m_spSite.Get()))))
        return true;
    Close();
    return false;
}

void CBand::Close()
{
    if (!m_spBand)
        return;
    m_spBand->ShowDW(FALSE);
    m_spBand->CloseDW(0);
    if (const ComPtr<IObjectWithSite> spSited = QueryFor<IObjectWithSite>(m_spBand.Get()))
        spSited->SetSite(nullptr);
    m_spSite->Detach();
    m_spInput.Reset();
    m_spBand.Reset();
    m_spSite.Reset();
}

HWND CBand::GetWindow() const
{
    HWND hWnd = nullptr;
    if (m_spBand)
        m_spBand->GetWindow(&hWnd);
    return hWnd;
}

void CBand::Show(bool bShow)
{
    if (m_spBand)
        m_spBand->ShowDW(bShow);
}

DESKBANDINFO CBand::GetInfo(DWORD dwBandId, DWORD dwViewMode)
{
    DESKBANDINFO info = {};
    info.dwMask =
        DBIM_MINSIZE | DBIM_MAXSIZE | DBIM_INTEGRAL | DBIM_ACTUAL | DBIM_TITLE | DBIM_MODEFLAGS | DBIM_BKCOLOR;
    if (!m_spBand || FAILED(m_spBand->GetBandInfo(dwBandId, dwViewMode, &info)))
        return {};
    return info;
}

bool CBand::HasFocus()
{
    return m_spInput && m_spInput->HasFocusIO() == S_OK;
}

void CBand::Activate(bool bActivate, MSG* pMsg)
{
    if (m_spInput)
        m_spInput->UIActivateIO(bActivate, pMsg);
}

bool CBand::TranslateKey(MSG* pMsg)
{
    return m_spInput && m_spInput->TranslateAcceleratorIO(pMsg) == S_OK;
}
