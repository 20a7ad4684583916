#include "bench/window/TabWindow.h"

#include "bench/com/WebBrowser.h"
#include "bench/engine/Page.h"
#include "bench/window/EventTap.h"
#include "bench/window/FaceColor.h"
#include "bench/window/RegisteredBands.h"

#include <comutil.h>

BEGIN_MESSAGE_MAP(CTabWindow, CWnd)
    ON_WM_SIZE()
    ON_MESSAGE(WM_ERASEBKGND, OnEraseBackground)
    ON_NOTIFY(RBN_HEIGHTCHANGE, CRebar::ControlId, OnHeightChange)
    ON_NOTIFY(RBN_CHEVRONPUSHED, CRebar::ControlId, OnChevronPushed)
END_MESSAGE_MAP()

CTabWindow::CTabWindow(ITabFrame& frame, int nTab) : m_frame(frame), m_nTab(nTab) {}

CTabWindow::~CTabWindow() = default;

bool CTabWindow::Create(CEngine& engine, const std::wstring& url, IEventTap& tap)
{
    constexpr DWORD dwStyle = WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
    IBrowserWindow& window = *this;
    IPageView& view = *this;
    m_spBrowser = MakeObject<CWebBrowser>(window, view);
    if (!CreateEx(0, nullptr, nullptr, dwStyle, RECT {}, m_frame.GetFrameWindow(), 0) ||
        !m_rebar.Create(m_hWnd, m_spBrowser.Get()) || !m_leftBar.Create(m_hWnd, true) ||
        !m_bottomBar.Create(m_hWnd, false) || !m_view.Create(m_hWnd, *m_spBrowser.Get()))
        return false;
    std::wstring error;
    if (!m_spBrowser->Open(engine, error))
        OnPageGone(error);
    m_rebar.LoadToolbars();
    tap.Connect(m_nTab, m_spBrowser.Get());
    Navigate(url);
    return true;
}

void CTabWindow::CloseTab()
{
    if (!IsWindowEnabled(m_frame.GetFrameWindow()))
        return;
    m_spBrowser->Close();
    m_leftBar.Close();
    m_bottomBar.Close();
    m_rebar.CloseAll();
    PostQuitMessage(0);
}

void CTabWindow::Place(const RECT& rect, bool bShow)
{
    SetWindowPos(m_hWnd, nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                 SWP_NOZORDER | SWP_NOACTIVATE | (bShow ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
    m_spBrowser->GetPage().ShowPictures(bShow);
}

void CTabWindow::Navigate(const std::wstring& url)
{
    m_spBrowser->Navigate(_bstr_t(url.c_str()), nullptr, nullptr, nullptr, nullptr);
}

void CTabWindow::Reload()
{
    m_spBrowser->Refresh();
}

void CTabWindow::Stop()
{
    m_spBrowser->Stop();
}

void CTabWindow::GoBack()
{
    m_spBrowser->GoBack();
}

void CTabWindow::GoForward()
{
    m_spBrowser->GoForward();
}

void CTabWindow::FinishDrawing()
{
    m_view.SetPicture(m_spBrowser->GetPage().Capture());
}

void CTabWindow::PressCtrlKey(UINT vk)
{
    m_spBrowser->GetPage().KeyDown(vk, MapVirtualKeyW(vk, MAPVK_VK_TO_VSC), InputCtrl);
    m_spBrowser->GetPage().KeyUp(vk, MapVirtualKeyW(vk, MAPVK_VK_TO_VSC), InputCtrl);
}

HRESULT CTabWindow::ShowBar(REFCLSID clsid, bool bShow, int nSize)
{
    const EBarPlace ePlace = GetBarPlace(clsid);
    if (ePlace == EBarPlace::None)
        return m_rebar.ShowToolbar(clsid, bShow);
    CExplorerBar& bar = ePlace == EBarPlace::Left ? m_leftBar : m_bottomBar;
    if (bShow == bar.Shows(clsid))
        return S_OK;
    if (bShow)
        return bar.Open(clsid, m_spBrowser.Get(), nSize);
    bar.Close();
    return S_OK;
}

void CTabWindow::OnSize(UINT, int, int)
{
    Layout();
}

void CTabWindow::OnHeightChange(NMHDR*, LRESULT*)
{
    Layout();
}

void CTabWindow::OnChevronPushed(NMHDR* pHeader, LRESULT*)
{
    m_rebar.OnChevron(*reinterpret_cast<const NMREBARCHEVRON*>(pHeader));
}

LRESULT CTabWindow::OnEraseBackground(WPARAM wParam, LPARAM)
{
    return FillWithFaceColor(m_hWnd, reinterpret_cast<HDC>(wParam));
}

void CTabWindow::Layout()
{
    constexpr UINT nFlags = SWP_NOZORDER | SWP_NOACTIVATE;
    RECT rect = {};
    GetClientRect(m_hWnd, &rect);
    m_rebar.SetWidth(rect.right);
    rect.top += m_rebar.GetHeight();
    const int nBottom = m_bottomBar.GetSize();
    SetWindowPos(m_bottomBar, nullptr, 0, rect.bottom - nBottom, rect.right, nBottom, nFlags);
    rect.bottom -= nBottom;
    const int nLeft = m_leftBar.GetSize();
    SetWindowPos(m_leftBar, nullptr, 0, rect.top, nLeft, rect.bottom - rect.top, nFlags);
    SetWindowPos(m_view, nullptr, nLeft, rect.top, rect.right - nLeft, rect.bottom - rect.top, nFlags);
}

bool CTabWindow::ShowScriptError(const std::wstring& message, const std::wstring& url, long nLine)
{
    const std::wstring text = L"A script of this page failed. Shall the page's scripts go on?\n\n" + message + L"\n" +
                              url + L"\nLine " + std::to_wstring(nLine);
    return MessageBoxW(m_frame.GetFrameWindow(), text.c_str(), L"Script Error", MB_YESNO | MB_ICONWARNING) == IDYES;
}

void CTabWindow::OnAddressChanged(const std::wstring& url)
{
    m_state.strUrl = url;
    TellFrame();
}

void CTabWindow::OnHistoryChanged()
{
    TellFrame();
}

void CTabWindow::OnTitleChanged(const std::wstring& title)
{
    m_state.strTitle = title;
    TellFrame();
}

void CTabWindow::OnLoadingChanged(bool bLoading)
{
    m_state.bLoading = bLoading;
    TellFrame();
}

void CTabWindow::OnStatusText(const std::wstring& text)
{
    m_state.strStatus = text;
    TellFrame();
}

void CTabWindow::OnScriptDialog(const std::wstring& message)
{
    OnStatusText(L"The page says: " + message);
}

void CTabWindow::OnPageGone(const std::wstring& reason)
{
    m_state.bLoading = false;
    m_view.SetMessage(reason);
    OnStatusText(reason);
}

void CTabWindow::TellFrame()
{
    const CPage& page = m_spBrowser->GetPage();
    m_state.bCanGoBack = page.CanGoBack();
    m_state.bCanGoForward = page.CanGoForward();
    m_frame.OnTabChanged(m_nTab, m_state);
}
