#include "tests/fakes/ToolbarRecorder.h"

#include <algorithm>
#include <cwchar>

namespace
{
CToolbarRecorder* g_pRecorder = nullptr;

constexpr UINT LastToolbarMessage = TB_SETPRESSEDIMAGELIST;

bool IsToolbar(HWND hWnd)
{
    wchar_t szClass[32] = {};
    GetClassNameW(hWnd, szClass, ARRAYSIZE(szClass));
    return _wcsicmp(szClass, TOOLBARCLASSNAMEW) == 0;
}

/// A list of strings that ends with an empty one, without its last two terminators.
std::wstring ReadStringList(const wchar_t* pszList)
{
    const wchar_t* pszEnd = pszList;
    while (*pszEnd != L'\0')
        pszEnd += std::wcslen(pszEnd) + 1;
    return pszEnd == pszList ? std::wstring() : std::wstring(pszList, pszEnd - 1);
}

void CopyRecord(CToolbarMessage& message)
{
    switch (message.nMessage)
    {
    case TB_ADDBUTTONSW: {
        const auto* pButtons = reinterpret_cast<const TBBUTTON*>(message.lParam);
        message.buttons.assign(pButtons, pButtons + message.wParam);
        break;
    }
    case TB_SETBUTTONINFOW:
        message.buttonInfo = *reinterpret_cast<const TBBUTTONINFOW*>(message.lParam);
        break;
    case TB_SETMETRICS:
        message.metrics = *reinterpret_cast<const TBMETRICS*>(message.lParam);
        break;
    case TB_ADDSTRINGW:
        if (message.wParam == 0) // otherwise the number of a resource
            message.strText = ReadStringList(reinterpret_cast<const wchar_t*>(message.lParam));
        break;
    }
}
} // namespace

CToolbarRecorder::CToolbarRecorder()
    : m_hHook(SetWindowsHookExW(WH_CALLWNDPROC, OnMessageSent, nullptr, GetCurrentThreadId()))
{
    g_pRecorder = this;
}

CToolbarRecorder::~CToolbarRecorder()
{
    UnhookWindowsHookEx(m_hHook);
    g_pRecorder = nullptr;
}

LRESULT CALLBACK CToolbarRecorder::OnMessageSent(int nCode, WPARAM wParam, LPARAM lParam)
{
    if (nCode == HC_ACTION)
        g_pRecorder->Record(*reinterpret_cast<const CWPSTRUCT*>(lParam));
    return CallNextHookEx(nullptr, nCode, wParam, lParam);
}

void CToolbarRecorder::Record(const CWPSTRUCT& sent)
{
    if (sent.message < WM_USER || sent.message > LastToolbarMessage || !IsToolbar(sent.hwnd))
        return;
    CToolbarMessage message = {sent.hwnd, sent.message, sent.wParam, sent.lParam, {}, {}, {}, {}};
    CopyRecord(message);
    m_messages.push_back(std::move(message));
}

std::vector<CToolbarMessage> CToolbarRecorder::GetMessages(UINT nMessage) const
{
    std::vector<CToolbarMessage> found;
    std::copy_if(m_messages.begin(), m_messages.end(), std::back_inserter(found),
                 [&](const CToolbarMessage& message) { return message.nMessage == nMessage; });
    return found;
}

std::vector<UINT> CToolbarRecorder::GetNumbers() const
{
    std::vector<UINT> numbers;
    for (const CToolbarMessage& message : m_messages)
        numbers.push_back(message.nMessage);
    return numbers;
}
