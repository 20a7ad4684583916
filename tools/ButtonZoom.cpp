#include "tools/ButtonZoom.h"

#include "band/ButtonIndex.h"
#include "band/TrelvixWindow.h"
#include "tools/PageZoom.h"
#include "tools/ShownDocument.h"
#include "tools/ZoomPercent.h"

namespace
{
constexpr int ZoomBoxWidth = 60;
constexpr long NormalZoom = 100;
constexpr long OfferedZooms[] = {10, 30, 60, 80, 90, NormalZoom, 120, 150, 200, 300, 500, 800};
} // namespace

IMPLEMENT_DYNCREATE(CButtonZoom, CButtonSearchWeb)

bool CButtonZoom::Initialize(CTrelvixWindow* pParent)
{
    m_nButtonId = ZoomIndex;
    m_strSearchUrl = L"ZOOM"; // read by nobody
    CButtonSearchWeb::Initialize(pParent);
    m_nControlWidth = ZoomBoxWidth;
    return true;
}

bool CButtonZoom::Place()
{
    CButtonSearchWeb::Place();
    m_comboSearch.ResetContent();
    for (const long nPercent : OfferedZooms)
    {
        const int nEntry = m_comboSearch.InsertString(m_comboSearch.GetCount(), FormatPercent(nPercent).c_str());
        if (nPercent != NormalZoom)
            continue;
        m_comboSearch.ShowPlaceholder(false);
        m_comboSearch.SetCurSel(nEntry);
    }
    return true;
}

bool CButtonZoom::Search(const std::wstring& strText)
{
    if (strText.empty() || m_pToolbar == nullptr || m_pToolbar->GetState() != CTVXEventManager::StateIdle ||
        m_pToolbar->GetWebBrowser() == nullptr)
        return false;
    const long nPercent = ParsePercent(strText);
    if (nPercent < SmallestZoom || nPercent > LargestZoom)
    {
        ShowPercent(nPercent < SmallestZoom ? SmallestZoom : LargestZoom);
        return false;
    }
    const auto spDocument = GetShownDocument(m_pToolbar->GetWebBrowser());
    return spDocument && ZoomDocument(spDocument.Get(), nPercent, false);
}

void CButtonZoom::OnPageLoadBegin(IDispatch*, LPCWSTR)
{
    Enable(false);
}

void CButtonZoom::OnPageLoadComplete(IDispatch*, LPCWSTR)
{
    ShowPercent(NormalZoom);
    Enable(true);
}

void CButtonZoom::OnFrameLoadBegin(IDispatch*, LPCWSTR, LPCWSTR)
{
    Enable(false);
}

void CButtonZoom::OnFrameLoadComplete(IDispatch*, LPCWSTR)
{
    Enable(true);
}

void CButtonZoom::OnPageRefreshBegin(IDispatch*, LPCWSTR)
{
    Enable(false);
}

void CButtonZoom::OnPageRefreshComplete()
{
    ShowPercent(NormalZoom);
    Enable(true);
}

void CButtonZoom::OnFrameRefreshBegin(IDispatch*, LPCWSTR, LPCWSTR)
{
    Enable(false);
}

void CButtonZoom::OnFrameRefreshComplete()
{
    Enable(true);
}

void CButtonZoom::ShowPercent(long nPercent)
{
    SetWindowTextW(m_comboSearch, FormatPercent(nPercent).c_str());
}

void CButtonZoom::Enable(bool bEnable)
{
    EnableWindow(m_comboSearch, bEnable);
}
