#include "bench/window/AddressBar.h"

#include "bench/BenchResource.h"
#include "bench/window/DeviceContext.h"
#include "bench/window/FaceColor.h"
#include "bench/window/Picture.h"
#include "framework/Module.h"

#include <commctrl.h>

namespace
{
constexpr int ImageSize = 16;
constexpr int ToolbarWidth = 52;
constexpr int ToolbarLeft = 2;
constexpr int ToolbarTop = 3;
constexpr int EditTop = 4;
constexpr int EditHeight = 22;
constexpr int EditMargin = 4;
constexpr int FontHeight = 13;
constexpr UINT EditId = 1;

enum ENavigationImage
{
    ImageBack,
    ImageForward,
    ImageReload,
    ImageGo,
    ImageStop,
};

std::string LoadNavigationPicture()
{
    const HINSTANCE hInstance = AfxGetInstanceHandle();
    const HRSRC hResource = FindResourceW(hInstance, MAKEINTRESOURCEW(IDR_NAVIGATION), RT_RCDATA);
    const auto* const pBytes = static_cast<const char*>(LockResource(LoadResource(hInstance, hResource)));
    return pBytes ? std::string(pBytes, SizeofResource(hInstance, hResource)) : std::string();
}

std::wstring Trim(const std::wstring& text)
{
    const size_t nBegin = text.find_first_not_of(L" \t");
    if (nBegin == std::wstring::npos)
        return {};
    return text.substr(nBegin, text.find_last_not_of(L" \t") + 1 - nBegin);
}
} // namespace

BEGIN_MESSAGE_MAP(CAddressBar, CWnd)
    ON_WM_PAINT()
    ON_WM_SIZE()
    ON_MESSAGE(WM_ERASEBKGND, OnEraseBackground)
END_MESSAGE_MAP()

LRESULT CAddressBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_COMMAND)
        return CWnd::WindowProc(message, wParam, lParam);
    if (LOWORD(wParam) != EditId)
        return SendMessageW(GetParent(m_hWnd), message, wParam, lParam);
    if (HIWORD(wParam) == EN_CHANGE)
        m_bTyping = HasFocus();
    else if (HIWORD(wParam) == EN_KILLFOCUS)
        m_bTyping = false;
    return 0;
}

bool CAddressBar::Create(HWND hWndParent)
{
    constexpr DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
    constexpr DWORD dwEditStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL;
    LoadImages();
    if (!CreateEx(0, nullptr, nullptr, dwStyle, RECT {}, hWndParent, 0) ||
        !CreateButtons(m_history, ImageBack, IDM_BACK, IDM_FORWARD) ||
        !CreateButtons(m_actions, ImageReload, IDM_REFRESH, IDM_GO) ||
        !m_edit.CreateEx(WS_EX_CLIENTEDGE, WC_EDITW, nullptr, dwEditStyle, RECT {}, m_hWnd, EditId))
        return false;
    m_font.reset(CreateFontW(-FontHeight, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                             CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, L"Tahoma"));
    SendMessageW(m_edit, WM_SETFONT, reinterpret_cast<WPARAM>(m_font.get()), FALSE);
    return true;
}

void CAddressBar::LoadImages()
{
    const CUniqueBitmap picture = DecodePicture(LoadNavigationPicture());
    m_images.Create(ImageSize, ImageSize, ILC_COLOR32, 0, 1);
    ImageList_Add(m_images.m_hImageList, picture.get(), nullptr);
}

bool CAddressBar::CreateButtons(CToolBarCtrl& toolbar, int nFirstImage, UINT nFirstCommand, UINT nSecondCommand)
{
    constexpr DWORD dwStyle =
        WS_CHILD | WS_VISIBLE | TBSTYLE_FLAT | TBSTYLE_TRANSPARENT | CCS_NODIVIDER | CCS_NOPARENTALIGN | CCS_NORESIZE;
    if (!toolbar.Create(dwStyle, RECT {}, m_hWnd, 0))
        return false;
    TBBUTTON buttons[2] = {};
    for (int i = 0; i < 2; ++i)
    {
        buttons[i].iBitmap = nFirstImage + i;
        buttons[i].idCommand = static_cast<int>(i == 0 ? nFirstCommand : nSecondCommand);
        buttons[i].fsState = TBSTATE_ENABLED;
        buttons[i].fsStyle = BTNS_BUTTON;
        buttons[i].iString = -1;
    }
    toolbar.SetImageList(m_images.m_hImageList);
    return toolbar.AddButtons(2, buttons);
}

void CAddressBar::SetAddress(const std::wstring& url)
{
    if (!m_bTyping && GetAddress() != url)
        SetWindowTextW(m_edit, url.c_str());
}

std::wstring CAddressBar::GetAddress() const
{
    std::wstring text;
    m_edit.GetWindowText(text);
    return Trim(text);
}

void CAddressBar::TakeFocus()
{
    SetFocus(m_edit);
    SendMessageW(m_edit, EM_SETSEL, 0, -1);
}

void CAddressBar::EndTyping()
{
    m_bTyping = false;
}

void CAddressBar::SetState(bool bCanGoBack, bool bCanGoForward, bool bLoading)
{
    SendMessageW(m_history, TB_ENABLEBUTTON, IDM_BACK, bCanGoBack);
    SendMessageW(m_history, TB_ENABLEBUTTON, IDM_FORWARD, bCanGoForward);
    TBBUTTONINFOW info = {};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_BYINDEX | TBIF_IMAGE | TBIF_COMMAND;
    info.iImage = bLoading ? ImageStop : ImageReload;
    info.idCommand = bLoading ? IDM_STOP : IDM_REFRESH;
    m_actions.SetButtonInfo(0, &info);
}

void CAddressBar::OnPaint()
{
    const CPaintDC screen(m_hWnd);
    FillWithFaceColor(m_hWnd, screen);
}

LRESULT CAddressBar::OnEraseBackground(WPARAM wParam, LPARAM)
{
    return FillWithFaceColor(m_hWnd, reinterpret_cast<HDC>(wParam));
}

void CAddressBar::OnSize(UINT, int cx, int cy)
{
    constexpr UINT nFlags = SWP_NOZORDER | SWP_NOACTIVATE;
    SetWindowPos(m_history, nullptr, ToolbarLeft, ToolbarTop, ToolbarWidth, cy - ToolbarTop, nFlags);
    const int cxEdit = cx - 2 * (ToolbarWidth + EditMargin);
    SetWindowPos(m_edit, nullptr, ToolbarWidth + EditMargin, EditTop, cxEdit, EditHeight, nFlags);
    SetWindowPos(m_actions, nullptr, cx - ToolbarWidth, ToolbarTop, ToolbarWidth, cy - ToolbarTop, nFlags);
}
