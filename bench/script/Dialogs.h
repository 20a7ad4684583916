#pragma once

#include <windows.h>

#include <string>

/// A dialog on show of this process that has the text in its title or in one of its controls; null when there is none.
HWND FindDialogWithText(const std::wstring& text);

/// A button of a dialog on show of this process by its text, access marks left out; null when there is none.
HWND FindDialogButton(const std::wstring& text);
