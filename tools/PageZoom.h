#pragma once

#include <windows.h>
#include <mshtml.h>

/// Scales a document by a wrapper around the content of its body, made at the first time and found again later, and
/// then its frames. A document in a frame is first scaled back by what its parent's wrapper does to it. False when a
/// step on this document failed; failures in its frames don't count.
bool ZoomDocument(IHTMLDocument2* pDocument, long nPercent, bool bIsFrame);
