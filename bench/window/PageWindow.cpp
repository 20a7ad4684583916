#include "bench/window/PageWindow.h"

#include "bench/com/WebBrowser.h"
#include "bench/engine/Page.h"
#include "bench/window/DeviceContext.h"
#include "bench/window/Picture.h"
#include "framework/Module.h"

#include <windowsx.h>

namespace
{
constexpr wchar_t ClassName[] = L"Internet Explorer_Server";

ATOM RegisterPageClass()
{
    WNDCLASSEXW windowClass = {};
    windowClass.cbSize = sizeof windowClass;
    windowClass.style = CS_DBLCLKS;
    windowClass.lpfnWndProc = DefWindowProcW;
    windowClass.hInstance = AfxGetInstanceHandle();
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.lpszClassName = ClassName;
    return RegisterClassExW(&windowClass);
}

/// The button that a message is about, None for any other message.
EMouseButton GetButton(UINT message)
{
    switch (message)
    {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
        return EMouseButton::Left;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
    case WM_RBUTTONDBLCLK:
        return EMouseButton::Right;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
    case WM_MBUTTONDBLCLK:
        return EMouseButton::Middle;
    default:
        return EMouseButton::None;
    }
}

EMouseButton GetHeldButton(WPARAM wKeys)
{
    if (wKeys & MK_LBUTTON)
        return EMouseButton::Left;
    if (wKeys & MK_RBUTTON)
        return EMouseButton::Right;
    return wKeys & MK_MBUTTON ? EMouseButton::Middle : EMouseButton::None;
}

UINT GetScanCode(LPARAM lParam)
{
    return (lParam >> 16) & 0x1FF;
}
} // namespace

BEGIN_MESSAGE_MAP(CPageWindow, CWnd)
    ON_WM_PAINT()
    ON_WM_SIZE()
    ON_MESSAGE(WM_ERASEBKGND, OnEraseBackground)
    ON_MESSAGE(WM_KEYDOWN, OnKeyDown)
    ON_MESSAGE(WM_KEYUP, OnKeyUp)
    ON_MESSAGE(WM_CHAR, OnChar)
    ON_MESSAGE(WM_SYSCHAR, OnSysChar)
    ON_MESSAGE(WM_SETFOCUS, OnSetFocus)
    ON_MESSAGE(WM_KILLFOCUS, OnKillFocus)
    ON_MESSAGE(WM_GETDLGCODE, OnGetDialogCode)
END_MESSAGE_MAP()

bool CPageWindow::Create(HWND hWndParent, CWebBrowser& browser)
{
    static const ATOM nClass = RegisterPageClass();
    m_pBrowser = &browser;
    return nClass != 0 &&
           CreateEx(0, ClassName, nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, RECT {}, hWndParent, 0);
}

void CPageWindow::SetPicture(const std::string& image)
{
    CUniqueBitmap picture = DecodePicture(image);
    if (!picture)
        return;
    m_picture = std::move(picture);
    m_strMessage.clear();
    InvalidateRect(m_hWnd, nullptr, FALSE);
}

void CPageWindow::SetMessage(const std::wstring& text)
{
    m_picture.reset();
    m_strMessage = text;
    InvalidateRect(m_hWnd, nullptr, FALSE);
}

LRESULT CPageWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    static const UINT nGetObject = RegisterWindowMessageW(L"WM_HTML_GETOBJECT");
    if (message == nGetObject)
        return m_pBrowser->GetHtmlObject(wParam);
    if (PassMouse(message, wParam, lParam))
        return 0;
    return CWnd::WindowProc(message, wParam, lParam);
}

void CPageWindow::OnPaint()
{
    const CPaintDC screen(m_hWnd);
    RECT rect = {};
    GetClientRect(m_hWnd, &rect);
    if (m_picture)
    {
        BITMAP size = {};
        GetObjectW(m_picture.get(), sizeof size, &size);
        const CBitmapDC picture(screen, m_picture.get());
        BitBlt(screen, 0, 0, size.bmWidth, size.bmHeight, picture, 0, 0, SRCCOPY);
        ExcludeClipRect(screen, 0, 0, size.bmWidth, size.bmHeight);
    }
    FillRect(screen, &rect, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    SelectObject(screen, GetStockObject(DEFAULT_GUI_FONT));
    DrawTextW(screen, m_strMessage.c_str(), -1, &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
}

void CPageWindow::OnSize(UINT, int cx, int cy)
{
    if (cx > 0 && cy > 0)
        m_pBrowser->GetPage().SetSize(cx, cy);
}

LRESULT CPageWindow::OnEraseBackground(WPARAM, LPARAM)
{
    return TRUE;
}

bool CPageWindow::PassMouse(UINT message, WPARAM wParam, LPARAM lParam)
{
    POINT point = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    switch (message)
    {
    case WM_MOUSEMOVE:
        m_pBrowser->GetPage().MouseEvent(EMouseEvent::Moved, point, GetHeldButton(wParam), 0, GetInputModifiers());
        return true;
    case WM_MOUSEWHEEL:
        ScreenToClient(m_hWnd, &point);
        m_pBrowser->GetPage().Wheel(point, GET_WHEEL_DELTA_WPARAM(wParam), GetInputModifiers());
        return true;
    default:
        if (GetButton(message) == EMouseButton::None)
            return false;
        PassButton(message, point);
        return true;
    }
}

void CPageWindow::PassButton(UINT message, POINT point)
{
    const bool bUp = message == WM_LBUTTONUP || message == WM_RBUTTONUP || message == WM_MBUTTONUP;
    const bool bDouble = message == WM_LBUTTONDBLCLK || message == WM_RBUTTONDBLCLK || message == WM_MBUTTONDBLCLK;
    if (bUp)
        ReleaseCapture();
    else
    {
        ::SetFocus(m_hWnd);
        SetCapture(m_hWnd);
    }
    m_pBrowser->GetPage().MouseEvent(bUp ? EMouseEvent::Released : EMouseEvent::Pressed, point, GetButton(message),
                                     bDouble ? 2 : 1, GetInputModifiers());
    if (message != WM_RBUTTONUP)
        return;
    ClientToScreen(m_hWnd, &point);
    m_pBrowser->AskForContextMenu(point);
}

LRESULT CPageWindow::OnKeyDown(WPARAM wParam, LPARAM lParam)
{
    MSG msg = {};
    msg.hwnd = m_hWnd;
    msg.message = WM_KEYDOWN;
    msg.wParam = wParam;
    msg.lParam = lParam;
    if (m_pBrowser->TranslateKey(msg))
        return 0;
    m_pBrowser->GetPage().KeyDown(static_cast<UINT>(wParam), GetScanCode(lParam), GetInputModifiers());
    return 0;
}

LRESULT CPageWindow::OnKeyUp(WPARAM wParam, LPARAM lParam)
{
    m_pBrowser->GetPage().KeyUp(static_cast<UINT>(wParam), GetScanCode(lParam), GetInputModifiers());
    return 0;
}

LRESULT CPageWindow::OnChar(WPARAM wParam, LPARAM)
{
    m_pBrowser->GetPage().Char(static_cast<wchar_t>(wParam), GetInputModifiers());
    return 0;
}

LRESULT CPageWindow::OnSysChar(WPARAM wParam, LPARAM)
{
    // The menu belongs to the frame, which must open it on its own thread.
    PostMessageW(GetAncestor(m_hWnd, GA_ROOT), WM_SYSCOMMAND, SC_KEYMENU, wParam);
    return 0;
}

LRESULT CPageWindow::OnSetFocus(WPARAM, LPARAM)
{
    m_pBrowser->GetPage().SetFocus(true);
    m_pBrowser->OnActivate(true);
    return 0;
}

LRESULT CPageWindow::OnKillFocus(WPARAM, LPARAM)
{
    m_pBrowser->GetPage().SetFocus(false);
    m_pBrowser->OnActivate(false);
    return 0;
}

LRESULT CPageWindow::OnGetDialogCode(WPARAM, LPARAM)
{
    return DLGC_WANTALLKEYS;
}
