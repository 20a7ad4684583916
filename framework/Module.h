#pragma once

#include <windows.h>

#include <string>

/// The instance of the binary that this code is linked into: the library inside the browser, a companion program
/// or a test. Its resources are the built-in ones. Never fails, needs no initialisation.
HINSTANCE AfxGetInstanceHandle();

/// The full path of a module's file, however long it is; null means the program of the process.
std::wstring AfxGetModulePath(HMODULE hModule);
