#pragma once

#include <windows.h>
#include <mshtml.h>

#include <functional>

/// Calls `action` with the document of each frame that stands directly in the document, in order. A frame that can't be
/// reached, as one of another domain, is left out. False when the document doesn't tell its frames.
bool ForEachFrameDocument(IHTMLDocument2* pDocument, const std::function<void(IHTMLDocument2*)>& action);
