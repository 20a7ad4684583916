#include "tests/unit/tools/ToolbarFixture.h"

#include "band/TrelvixWindow.h"
#include "tools/ButtonSearchWeb.h"

namespace
{
COMBOBOXINFO GetInfo(HWND hWndBox)
{
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    EXPECT_TRUE(GetComboBoxInfo(hWndBox, &info));
    return info;
}

void ClickInto(HWND hWnd, const RECT& rect)
{
    const LPARAM lParam = MAKELPARAM((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
    SendMessageW(hWnd, WM_MOUSEMOVE, 0, lParam);
    SendMessageW(hWnd, WM_LBUTTONDOWN, MK_LBUTTON, lParam);
    SendMessageW(hWnd, WM_LBUTTONUP, 0, lParam);
}
} // namespace

void CToolbarTest::SetUp()
{
    m_frame.Show();
    ShowPage(L"");
    Connect();
    ASSERT_EQ(S_OK, AskBandFor<IDockingWindow>()->ShowDW(TRUE));
    SetFocus(m_frame);
    CFakeCalls::Get().ClearLog();
}

void CToolbarTest::TearDown()
{
    m_spBrowser->m_spDocument.Reset();
    CBandTest::TearDown();
}

CFakeHtmlDocument& CToolbarTest::ShowPage(const std::wstring& strSource)
{
    m_spPage = MakeFake<CFakeHtmlDocument>(strSource);
    m_spBrowser->m_spDocument = static_cast<IHTMLDocument2*>(m_spPage.Get());
    return *m_spPage.Get();
}

CButtonSearchWeb& CToolbarTest::GetItem(int nIndex)
{
    return static_cast<CButtonSearchWeb&>(*GetToolbar().GetButton(nIndex));
}

HWND CToolbarTest::GetBox(int nIndex)
{
    return GetDlgItem(GetBandWindow(), nIndex);
}

std::wstring CToolbarTest::GetBoxText(int nIndex)
{
    return GetTextOf(GetBox(nIndex));
}

std::vector<std::wstring> CToolbarTest::GetEntries(int nIndex)
{
    std::vector<std::wstring> entries(SendMessageW(GetBox(nIndex), CB_GETCOUNT, 0, 0));
    for (size_t n = 0; n < entries.size(); ++n)
    {
        entries[n].resize(SendMessageW(GetBox(nIndex), CB_GETLBTEXTLEN, n, 0));
        SendMessageW(GetBox(nIndex), CB_GETLBTEXT, n, reinterpret_cast<LPARAM>(entries[n].data()));
    }
    return entries;
}

void CToolbarTest::Type(int nIndex, const std::wstring& strText)
{
    GetItem(nIndex).TakeFocus();
    SetWindowTextW(GetBox(nIndex), strText.c_str());
}

HRESULT CToolbarTest::PressKey(int nIndex, UINT nKey)
{
    MSG message = {};
    message.hwnd = GetWindow(GetBox(nIndex), GW_CHILD);
    message.message = WM_KEYDOWN;
    message.wParam = nKey;
    message.lParam = 1;
    return AskBandFor<IInputObject>()->TranslateAcceleratorIO(&message);
}

void CToolbarTest::Enter(int nIndex, const std::wstring& strText)
{
    Type(nIndex, strText);
    PressKey(nIndex, VK_RETURN);
}

void CToolbarTest::ClickArrow(int nIndex)
{
    ClickInto(GetBox(nIndex), GetInfo(GetBox(nIndex)).rcButton);
}

void CToolbarTest::ClickEntry(int nIndex, int nEntry)
{
    const HWND hWndList = GetInfo(GetBox(nIndex)).hwndList;
    RECT rect = {};
    SendMessageW(hWndList, LB_GETITEMRECT, nEntry, reinterpret_cast<LPARAM>(&rect));
    ClickInto(hWndList, rect);
}

bool CToolbarTest::IsDropped(int nIndex)
{
    return SendMessageW(GetBox(nIndex), CB_GETDROPPEDSTATE, 0, 0) != 0;
}

std::wstring GetTextOf(HWND hWnd)
{
    std::wstring strText(GetWindowTextLengthW(hWnd), L'\0');
    GetWindowTextW(hWnd, strText.data(), static_cast<int>(strText.size() + 1));
    return strText;
}
