#pragma once

#include "broker/WindowSize.h"

#include <windows.h>

/// Gives a browser's top-level window an outer size, as the browser itself would: the size of the whole screen
/// maximises it, a maximised window is restored first. E_INVALIDARG for any other window. Waits for nothing: a browser
/// that hangs can't hold up the broker.
HRESULT ResizeBrowserWindow(HWND hWnd, const WindowSize& size);
