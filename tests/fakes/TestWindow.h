#pragma once

#include <windows.h>

/// A plain top-level window for a test, destroyed with the object.
class CTestWindow
{
public:
    explicit CTestWindow(int cx = 1200, int cy = 300);
    CTestWindow(const CTestWindow&) = delete;
    CTestWindow& operator=(const CTestWindow&) = delete;
    ~CTestWindow();

    operator HWND() const { return m_hWnd; }
    void Show() const { ShowWindow(m_hWnd, SW_SHOWNORMAL); }

private:
    HWND m_hWnd;
};

/// Handles what stands in the thread's message queue, without waiting for more.
void PumpMessages();
