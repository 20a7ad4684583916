#include "tests/benchmark/PlainToolbar.h"

#include "band/LayoutString.h"
#include "framework/Module.h"
#include "resources/resource.h"

#include <uxtheme.h>

namespace
{
constexpr DWORD ToolbarStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_TABSTOP | TBSTYLE_TRANSPARENT |
                               TBSTYLE_LIST | TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | CCS_NODIVIDER | CCS_NOPARENTALIGN |
                               CCS_NORESIZE | CCS_NOMOVEY | CCS_TOP;
static_assert(ToolbarStyle == 0x5401994F);
constexpr DWORD BoxStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | WS_BORDER | WS_VSCROLL |
                           CBS_DROPDOWN | CBS_AUTOHSCROLL | CBS_HASSTRINGS | CBS_NOINTEGRALHEIGHT;
constexpr UINT SetMessages[] = {TB_SETIMAGELIST, TB_SETHOTIMAGELIST, TB_SETDISABLEDIMAGELIST};
constexpr const wchar_t* Zooms[] = {L"10%",  L"30%",  L"60%",  L"80%",  L"90%",  L"100%",
                                    L"120%", L"150%", L"200%", L"300%", L"500%", L"800%"};
constexpr int SelectedZoom = 5;
constexpr int DropDownHeight = 150;
constexpr int FirstLabel = 1000;
constexpr int FirstCommand = 1024;

struct CPlainItem
{
    BYTE nStyle;
    WORD nWidth;
    bool bHasBox;
};

/// By index.
constexpr CPlainItem Items[ButtonCount] = {
    {BTNS_WHOLEDROPDOWN, 0, false},
    {BTNS_SEP, 10, false},
    {BTNS_CHECK | BTNS_DROPDOWN, 0, false},
    {BTNS_SEP, 200, true},
    {BTNS_AUTOSIZE | BTNS_DROPDOWN, 0, false},
    {BTNS_AUTOSIZE | BTNS_DROPDOWN, 0, false},
    {BTNS_BUTTON, 0, false},
    {BTNS_SEP, 200, true},
    {BTNS_SEP, 60, true},
    {BTNS_BUTTON, 0, false},
    {BTNS_AUTOSIZE | BTNS_WHOLEDROPDOWN, 0, false},
    {BTNS_AUTOSIZE | BTNS_DROPDOWN, 0, false},
    {BTNS_AUTOSIZE | BTNS_WHOLEDROPDOWN, 0, false},
    {BTNS_AUTOSIZE | BTNS_WHOLEDROPDOWN, 0, false},
};

/// The version 6 controls of this program's manifest, while the object lives.
class CPlainStyle
{
public:
    CPlainStyle()
    {
        wchar_t szPath[MAX_PATH] = {};
        GetModuleFileNameW(nullptr, szPath, MAX_PATH);
        ACTCTXW request = {};
        request.cbSize = sizeof request;
        request.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
        request.lpSource = szPath;
        request.lpResourceName = MAKEINTRESOURCEW(IDR_MANIFEST);
        request.hModule = AfxGetInstanceHandle();
        m_context.reset(CreateActCtxW(&request));
        ActivateActCtx(m_context.get(), &m_nCookie);
    }
    ~CPlainStyle() { DeactivateActCtx(0, m_nCookie); }

private:
    CUniqueHandle<HANDLE, ReleaseActCtx> m_context;
    ULONG_PTR m_nCookie = 0;
};

/// Closed by two null characters, as the toolbar wants its texts.
std::wstring LoadLabel(int nIndex)
{
    wchar_t szLabel[100] = {};
    LoadStringW(AfxGetInstanceHandle(), FirstLabel + nIndex, szLabel, ARRAYSIZE(szLabel) - 1);
    return std::wstring(szLabel) + L'\0';
}
} // namespace

CPlainToolbar::~CPlainToolbar()
{
    DestroyWindow(m_hWnd);
    DestroyWindow(m_hWndReflexion);
}

void CPlainToolbar::Create(HWND hWndParent)
{
    const CPlainStyle style;
    CreateWindows(hWndParent);
    SetImageLists();
    Load();
}

void CPlainToolbar::CreateWindows(HWND hWndParent)
{
    RECT rect = {};
    GetClientRect(hWndParent, &rect);
    const INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_BAR_CLASSES};
    InitCommonControlsEx(&controls);
    const HINSTANCE hInstance = AfxGetInstanceHandle();
    m_hWnd = CreateWindowExW(0, TOOLBARCLASSNAMEW, nullptr, ToolbarStyle, rect.left, rect.top, rect.right, rect.bottom,
                             hWndParent, nullptr, hInstance, nullptr);
    SendMessageW(m_hWnd, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    m_hWndReflexion = CreateWindowExW(0, WC_STATICW, nullptr, WS_CHILD, rect.left, rect.top, rect.right, rect.bottom,
                                      m_hWnd, nullptr, hInstance, nullptr);
    SendMessageW(m_hWnd, TB_SETPARENT, reinterpret_cast<WPARAM>(m_hWndReflexion), 0);
    SendMessageW(m_hWnd, TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_DRAWDDARROWS | TBSTYLE_EX_MIXEDBUTTONS);
}

void CPlainToolbar::SetImageLists()
{
    for (size_t n = 0; n < ARRAYSIZE(SetMessages); ++n)
    {
        const CUniqueBitmap bitmap(static_cast<HBITMAP>(LoadImageW(
            AfxGetInstanceHandle(), MAKEINTRESOURCEW(IDB_TOOLBAR), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
        m_imageLists[n].reset(ImageList_Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 1));
        ImageList_AddMasked(m_imageLists[n].get(), bitmap.get(), RGB(255, 255, 255));
        SendMessageW(m_hWnd, SetMessages[n], 0, reinterpret_cast<LPARAM>(m_imageLists[n].get()));
    }
}

void CPlainToolbar::Load()
{
    const Layout layout = DecodeLayout(DefaultLayout);
    Clear();
    IsThemeActive();
    TBMETRICS metrics = {};
    metrics.cbSize = sizeof metrics;
    metrics.dwMask = TBMF_PAD | TBMF_BARPAD | TBMF_BUTTONSPACING;
    SendMessageW(m_hWnd, TB_SETMETRICS, 0, reinterpret_cast<LPARAM>(&metrics));
    AddLabels();
    for (int nPosition = 0; layout.order[nPosition] != -1; ++nPosition)
        PlaceItem(layout.order[nPosition]);
}

void CPlainToolbar::Clear()
{
    while (SendMessageW(m_hWnd, TB_DELETEBUTTON, 0, 0))
    {
    }
    for (const HWND hWnd : m_boxes)
        DestroyWindow(hWnd);
    m_boxes.clear();
}

void CPlainToolbar::AddLabels()
{
    for (int nIndex = 0; nIndex < ButtonCount; ++nIndex)
        m_labels[nIndex] = SendMessageW(m_hWnd, TB_ADDSTRINGW, 0, reinterpret_cast<LPARAM>(LoadLabel(nIndex).c_str()));
}

void CPlainToolbar::PlaceItem(int nIndex)
{
    const CPlainItem& item = Items[nIndex];
    TBBUTTON button = {};
    button.iBitmap = nIndex;
    button.idCommand = FirstCommand + nIndex;
    button.fsState = TBSTATE_ENABLED;
    button.fsStyle = item.nStyle;
    button.iString = m_labels[nIndex];
    SendMessageW(m_hWnd, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button));
    if (item.nStyle != BTNS_SEP)
        return;
    TBBUTTONINFOW info = {};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_STYLE | TBIF_SIZE | TBIF_BYINDEX;
    info.fsStyle = BTNS_SEP;
    info.cx = item.nWidth;
    const WPARAM nLast = SendMessageW(m_hWnd, TB_BUTTONCOUNT, 0, 0) - 1;
    SendMessageW(m_hWnd, TB_SETBUTTONINFOW, nLast, reinterpret_cast<LPARAM>(&info));
    if (item.bHasBox)
        PlaceBox(nIndex);
}

RECT CPlainToolbar::GetLastRect() const
{
    RECT rect = {};
    const WPARAM nLast = SendMessageW(m_hWnd, TB_BUTTONCOUNT, 0, 0) - 1;
    SendMessageW(m_hWnd, TB_GETITEMRECT, nLast, reinterpret_cast<LPARAM>(&rect));
    return rect;
}

void CPlainToolbar::PlaceBox(int nIndex)
{
    const RECT rect = GetLastRect();
    const HWND hWnd =
        CreateWindowExW(0, WC_COMBOBOXW, nullptr, BoxStyle, rect.left, rect.top, rect.right - rect.left,
                        rect.bottom - rect.top + DropDownHeight, m_hWnd,
                        reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nIndex)), AfxGetInstanceHandle(), nullptr);
    m_boxes.push_back(hWnd);
    SendMessageW(hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), TRUE);
    SetWindowTextW(hWnd, LoadLabel(nIndex).c_str());
    if (nIndex != ZoomIndex)
        return;
    SendMessageW(hWnd, CB_RESETCONTENT, 0, 0);
    for (const wchar_t* pszZoom : Zooms)
        SendMessageW(hWnd, CB_INSERTSTRING, SendMessageW(hWnd, CB_GETCOUNT, 0, 0), reinterpret_cast<LPARAM>(pszZoom));
    SetWindowTextW(hWnd, L"");
    SendMessageW(hWnd, CB_SETCURSEL, SelectedZoom, 0);
}
