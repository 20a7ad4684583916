#pragma once

#include <string>

/// Types the text on the platform's keyboard, whatever window has it.
void SendText(const std::wstring& text);

/// Presses and releases a key with others held, such as "Ctrl+Shift+Tab", "F5" or "A". False for an unknown name.
bool SendKeys(const std::wstring& keys);
