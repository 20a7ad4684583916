#pragma once

#include <windows.h>

/// The width in pixels that a toolbar control needs for all of its buttons; 0 for any other window.
int GetContentWidth(HWND hToolbar);

/// Shows a menu of the toolbar's buttons that don't fit into its window, and clicks the one that the person chooses.
/// `point` is the menu's upper right corner on the screen.
void ShowChevronMenu(HWND hToolbar, POINT point);
