#include "tools/ButtonSearchWeb.h"

#include "band/TrelvixWindow.h"
#include "framework/ReplaceAll.h"
#include "tools/EscapeSearchText.h"

namespace
{
constexpr int BoxWidth = 200;
constexpr int DropDownHeight = 150;
constexpr DWORD BoxStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | WS_BORDER | WS_VSCROLL |
                           CBS_DROPDOWN | CBS_AUTOHSCROLL | CBS_HASSTRINGS | CBS_NOINTEGRALHEIGHT;
} // namespace

IMPLEMENT_DYNCREATE(CButtonSearchWeb, CTrelvixButton)

CButtonSearchWeb::~CButtonSearchWeb()
{
    if (!m_bNoHistory)
        SaveHistory();
    m_comboSearch.m_pOwnerButton = nullptr;
}

bool CButtonSearchWeb::Initialize(CTrelvixWindow* pParent)
{
    m_bHasControl = true;
    m_bFocusable = true;
    if (m_nControlWidth == -1)
        m_nControlWidth = BoxWidth;
    CTrelvixButton::Initialize(pParent);
    m_tbButton.fsStyle = BTNS_SEP;
    return true;
}

void CButtonSearchWeb::Show(bool bShow)
{
    CTrelvixButton::Show(bShow);
    if (m_comboSearch.m_hWnd != nullptr)
        ShowWindow(m_comboSearch, bShow ? SW_SHOW : SW_HIDE);
}

bool CButtonSearchWeb::Place()
{
    CTrelvixButton::Place();
    if (m_comboSearch.m_hWnd == nullptr && CanPlace())
        return CreateBox();
    if (m_comboSearch.m_hWnd != nullptr)
        ShowWindow(m_comboSearch, SW_SHOW);
    return true;
}

bool CButtonSearchWeb::CreateBox()
{
    RECT rect = {};
    m_pToolbar->GetItemRect(m_pToolbar->GetButtonCount() - 1, &rect);
    rect.bottom += DropDownHeight;
    m_comboSearch.Create(BoxStyle, rect, *m_pToolbar, m_nButtonId);
    m_comboSearch.m_pOwnerButton = this;
    SendMessageW(m_comboSearch, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), TRUE);
    if (!m_bNoHistory)
        LoadHistory();
    m_comboSearch.ShowPlaceholder(true);
    return true;
}

bool CButtonSearchWeb::HasFocus()
{
    return m_bHasFocus;
}

bool CButtonSearchWeb::TakeFocus()
{
    SetFocus(m_comboSearch);
    return true;
}

HRESULT CButtonSearchWeb::TranslateKey(MSG* pMsg)
{
    if (pMsg->wParam == VK_RETURN) // whatever the message, and meant so
    {
        pMsg->wParam = 0;
        Run();
        return S_OK;
    }
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_TAB)
        return m_pToolbar != nullptr ? m_pToolbar->MoveFocus(GetKeyState(VK_SHIFT) >= 0) : S_FALSE;
    TranslateMessage(pMsg);
    DispatchMessageW(pMsg);
    return S_OK;
}

bool CButtonSearchWeb::Repaint()
{
    if (!m_bVisible)
        return false;
    UpdateWindow(m_comboSearch);
    if (const HWND hWndEdit = GetWindow(m_comboSearch, GW_CHILD))
        InvalidateRect(hWndEdit, nullptr, TRUE);
    return true;
}

bool CButtonSearchWeb::Search(const std::wstring& strText)
{
    if (strText.empty())
        return false;
    if (m_comboSearch.FindStringExact(-1, strText.c_str()) == CB_ERR && !m_bNoHistory)
        m_comboSearch.InsertString(0, strText.c_str());
    if (m_pToolbar == nullptr)
        return true;
    const std::wstring strUrl = ReplaceAll(m_strSearchUrl, L"%%WORD%%", EscapeSearchText(strText));
    m_pToolbar->NavigateTo(strUrl.c_str(), false);
    return true;
}

bool CButtonSearchWeb::Run()
{
    std::wstring strText;
    m_comboSearch.GetWindowText(strText);
    return Search(strText);
}
