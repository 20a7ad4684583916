#pragma once

#include <windows.h>

/// The first toolbar control of a band in the tab's window; null when there is none.
HWND FindToolbar(HWND hTabWindow);
