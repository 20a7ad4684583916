#include "tests/fakes/TestWindow.h"

CTestWindow::CTestWindow(int cx, int cy)
    : m_hWnd(CreateWindowExW(0, L"Static", L"", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 0, 0, cx, cy, nullptr, nullptr,
                             GetModuleHandleW(nullptr), nullptr))
{
}

CTestWindow::~CTestWindow()
{
    if (IsWindow(m_hWnd))
        DestroyWindow(m_hWnd);
}

void PumpMessages()
{
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE))
    {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
}
