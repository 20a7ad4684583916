#pragma once

#include <string>

/// Says something to whoever started the program: on its standard output when it has one, else in a box.
void ShowMessage(const std::wstring& text);

/// Says in one line what went wrong: on standard error when the program has one, else in a box.
void ShowError(const std::wstring& line);
