#include "band/TrelvixButton.h"

#include "band/TrelvixWindow.h"
#include "settings/LanguagePack.h"

#include <algorithm>

IMPLEMENT_DYNCREATE(CTrelvixButton, CObject)

bool CTrelvixButton::Initialize(CTrelvixWindow* pParent)
{
    if (pParent != nullptr)
        m_pToolbar = pParent;
    m_tbButton.fsState = TBSTATE_ENABLED;
    m_tbButton.fsStyle = 0;
    m_tbButton.iBitmap = m_nButtonId;
    m_tbButton.dwData = m_nButtonId;
    m_tbButton.idCommand = m_nButtonId + FirstButtonCommand;
    if (m_pToolbar != nullptr)
        m_tbButton.iString = m_pToolbar->AddStrings(GetLabelList());
    return true;
}

void CTrelvixButton::Show(bool bShow)
{
    m_bVisible = bShow;
}

const wchar_t* CTrelvixButton::GetLabel()
{
    if (m_pszLabel == nullptr)
    {
        std::wstring label;
        LoadTranslatedString(label, m_nButtonId + FirstButtonLabel);
        SetLabel(label.c_str());
    }
    return m_pszLabel.get();
}

bool CTrelvixButton::OnCommand(UINT)
{
    return true;
}

void CTrelvixButton::OnBrowserEvent(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) {}

bool CTrelvixButton::Place()
{
    if (!CanPlace())
        return true;
    SetGapWidth(0, m_tbButton.idCommand);
    return true;
}

bool CTrelvixButton::HasFocus()
{
    return false;
}

bool CTrelvixButton::TakeFocus()
{
    return false;
}

HRESULT CTrelvixButton::TranslateKey(MSG*)
{
    return S_OK;
}

bool CTrelvixButton::OnIconClick(UINT, POINT)
{
    return false;
}

bool CTrelvixButton::OnDropDown(NMTOOLBARW*, int)
{
    return false;
}

bool CTrelvixButton::Repaint()
{
    return false;
}

bool CTrelvixButton::OnScriptError(IHTMLDocument2*, bool*, bool*)
{
    return false;
}

void CTrelvixButton::SetLabel(const wchar_t* pszLabel)
{
    const size_t length = wcslen(pszLabel);
    auto label = std::make_unique<wchar_t[]>(length + 1);
    auto labelList = std::make_unique<wchar_t[]>(length + 2);
    std::copy_n(pszLabel, length, label.get());
    std::copy_n(pszLabel, length, labelList.get());
    m_pszLabel = std::move(label);
    m_pszLabelList = std::move(labelList);
}

const wchar_t* CTrelvixButton::GetLabelList()
{
    if (m_pszLabelList == nullptr)
        SetLabel(GetLabel());
    return m_pszLabelList.get();
}

void CTrelvixButton::SetGapWidth(DWORD dwMask, int nButton)
{
    RECT rect = {}; // asked for and not used, and meant so
    m_pToolbar->GetItemRect(m_pToolbar->GetButtonCount() - 1, &rect);
    TBBUTTONINFOW info = {};
    info.cbSize = sizeof info;
    info.dwMask = dwMask | TBIF_STYLE | TBIF_SIZE;
    info.fsStyle = BTNS_SEP;
    info.cx = static_cast<WORD>(m_nControlWidth);
    m_pToolbar->SetButtonInfo(nButton, &info);
}
