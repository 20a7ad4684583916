#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

/// A message box as a user saw it.
struct CShownBox
{
    std::wstring strTitle;
    std::wstring strText;
    std::vector<int> buttons; ///< command numbers, in the order of their windows
    HICON hIcon;              ///< null without one
    HWND hWndOwner;
};

/// Answers each message box of this thread while it lives, as soon as it is active: keeps what it shows, runs the
/// test's action while it stands open, then presses the button. One at a time.
class CMessageBoxAnswerer
{
public:
    using Action = std::function<void()>;

    explicit CMessageBoxAnswerer(int nButton, Action whileShown = {});
    CMessageBoxAnswerer(const CMessageBoxAnswerer&) = delete;
    CMessageBoxAnswerer& operator=(const CMessageBoxAnswerer&) = delete;
    ~CMessageBoxAnswerer();

    const std::vector<CShownBox>& GetShown() const { return m_shown; }

private:
    static LRESULT CALLBACK OnWindowEvent(int nCode, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK OnAnswererMessage(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam);
    void Answer(HWND hWndBox);

    const int m_nButton;
    const Action m_whileShown;
    HWND m_hWnd; ///< message-only; its messages come inside the box's own loop
    HHOOK m_hHook;
    std::vector<HWND> m_answered;
    std::vector<CShownBox> m_shown;
};
