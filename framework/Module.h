#pragma once

#include <windows.h>

/// The instance of the binary that this code is linked into: the library inside the browser, a companion program
/// or a test. Its resources are the built-in ones. Never fails, needs no initialisation.
HINSTANCE AfxGetInstanceHandle();
