#pragma once

#include <windows.h>

// Calls of the platform that run with the module's own manifest in force, so that they find version 6 of the common
// controls inside a host that asks for none. One context, made on first use, serves them all. Each call keeps the last
// error of what it wraps, and fails with its failure value when the context can't be activated.

/// LoadLibraryW.
HMODULE IsolatedLoadLibrary(LPCWSTR lpLibFileName);

/// DialogBoxParamW; -1 on failure.
INT_PTR IsolatedDialogBoxParam(HINSTANCE hInstance, LPCWSTR lpTemplateName, HWND hWndParent, DLGPROC lpDialogFunc,
                               LPARAM dwInitParam);

/// _TrackMouseEvent of the common controls.
BOOL IsolatedTrackMouseEvent(TRACKMOUSEEVENT* lpEventTrack);

/// SetWindowTheme of the visual styles library, which is loaded for this call; 0 on any failure.
BOOL SetThemeOfWindow(HWND hWnd, LPCWSTR pszSubAppName, LPCWSTR pszSubIdList);

/// IsThemeActive of the visual styles library, which is loaded for this one question; false when it can't be loaded.
bool IsThemeActiveNow();

/// Releases the context when the module is unloaded. A wrapper that is called later says so in the debug output and
/// goes on without the manifest.
void IsolationAwareCleanup();
