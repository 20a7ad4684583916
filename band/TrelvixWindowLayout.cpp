#include "band/ButtonTable.h"
#include "band/TrelvixWindow.h"
#include "controls/IsolationAware.h"
#include "settings/SettingsStore.h"

#include <utility>

namespace
{
/// Room around the images: less where a visual style draws its own wide arrow buttons.
constexpr SIZE DefaultPadding = {7, 6};
constexpr SIZE ThemedSplitPadding = {6, -2};

/// Sets a flag for as long as it lives.
class CFlagScope
{
public:
    explicit CFlagScope(bool& bFlag) : m_bFlag(bFlag) { m_bFlag = true; }
    CFlagScope(const CFlagScope&) = delete;
    CFlagScope& operator=(const CFlagScope&) = delete;
    ~CFlagScope() { m_bFlag = false; }

private:
    bool& m_bFlag;
};
} // namespace

bool CTrelvixWindow::LoadLayout()
{
    m_bLayoutOutdated = true;
    if (m_bMakingLayout)
        return true;
    const auto spThis = Hold();
    const CFlagScope making(m_bMakingLayout);
    while (std::exchange(m_bLayoutOutdated, false))
        MakeLayout();
    return true;
}

void CTrelvixWindow::MakeLayout()
{
    ReadLayout();
    DeleteAllButtons();
    DestroyButtons();
    CreateButtons();
    SetPadding();
    PlaceButtons();
    if (m_hWnd == nullptr) // the band ended meanwhile
        DestroyButtons();
}

void CTrelvixWindow::ReadLayout()
{
    std::wstring text = CSettingsStore(SettingsRoot).ReadString(L"Toolbar", L"Layout");
    if (text.empty())
        text = DefaultLayout;
    const Layout layout = DecodeLayout(text);
    m_aOrder = layout.order;
    m_bHasSplitButton = layout.hasSplitButton;
}

void CTrelvixWindow::DeleteAllButtons()
{
    while (GetButtonCount() != 0 && DeleteButton(0))
    {
    }
}

void CTrelvixWindow::DestroyButtons()
{
    for (auto& pButton : m_pButtons)
        pButton.reset();
}

void CTrelvixWindow::CreateButtons()
{
    for (int nIndex = 0; nIndex < ButtonCount && m_hWnd != nullptr; ++nIndex)
    {
        std::unique_ptr<CObject> pObject = GetButtonTable()[nIndex]->CreateObject();
        if (pObject == nullptr)
            continue;
        m_pButtons[nIndex].reset(static_cast<CTrelvixButton*>(pObject.release()));
        m_pButtons[nIndex]->Initialize(this);
    }
}

void CTrelvixWindow::SetPadding()
{
    const SIZE padding = IsThemeActiveNow() && m_bHasSplitButton ? ThemedSplitPadding : DefaultPadding;
    TBMETRICS metrics = {};
    metrics.cbSize = sizeof metrics;
    metrics.dwMask = TBMF_PAD | TBMF_BARPAD | TBMF_BUTTONSPACING;
    metrics.cxPad = padding.cx;
    metrics.cyPad = padding.cy;
    SetMetrics(&metrics);
}

void CTrelvixWindow::PlaceButtons()
{
    for (int n = 0; n < MaxLayoutEntries && m_aOrder[n] != -1 && m_hWnd != nullptr; ++n)
        if (CTrelvixButton* pButton = GetButton(m_aOrder[n]))
        {
            AddButtons(1, &pButton->GetTBButton());
            pButton->Show(true);
            if (m_hWnd != nullptr)
                pButton->Place();
        }
}
