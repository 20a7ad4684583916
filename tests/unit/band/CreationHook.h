#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <utility>

/// Is asked before each window of this thread is created.
class CCreationHook
{
public:
    /// The answer tells whether the window of the class may be created.
    using Ask = std::function<bool(const std::wstring& strClass, const CREATESTRUCTW& creation)>;

    explicit CCreationHook(Ask ask) : m_hHook(SetWindowsHookExW(WH_CBT, &OnEvent, nullptr, GetCurrentThreadId()))
    {
        s_ask = std::move(ask);
    }
    CCreationHook(const CCreationHook&) = delete;
    CCreationHook& operator=(const CCreationHook&) = delete;
    ~CCreationHook()
    {
        UnhookWindowsHookEx(m_hHook);
        s_ask = nullptr;
    }

private:
    static LRESULT CALLBACK OnEvent(int nCode, WPARAM wParam, LPARAM lParam)
    {
        wchar_t szClass[32] = {};
        GetClassNameW(reinterpret_cast<HWND>(wParam), szClass, ARRAYSIZE(szClass));
        if (nCode == HCBT_CREATEWND && !s_ask(szClass, *reinterpret_cast<const CBT_CREATEWNDW*>(lParam)->lpcs))
            return TRUE;
        return CallNextHookEx(nullptr, nCode, wParam, lParam);
    }

    static inline Ask s_ask;
    HHOOK m_hHook;
};
