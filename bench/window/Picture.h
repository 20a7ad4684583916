#pragma once

#include "framework/Handles.h"

#include <windows.h>

#include <string>

/// Decodes a picture file (PNG, JPEG). Null when it is none. COM must have been initialised on the thread.
CUniqueBitmap DecodePicture(const std::string& file);

/// Writes a bitmap as a PNG file; false when that fails. COM must have been initialised on the thread.
bool SavePicture(HBITMAP hBitmap, const std::wstring& path);

/// A picture of what is to be seen of a rectangle of the screen. Null when there is no memory for it.
CUniqueBitmap CaptureScreen(const RECT& rect);
