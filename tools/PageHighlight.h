#pragma once

#include <windows.h>
#include <mshtml.h>

#include <string>

/// Marks every hit of the text in one document: each gets an element of its own with black text on yellow. The search
/// ignores case. False when the document can't be searched; true also when it ends halfway.
bool HighlightDocument(const std::wstring& strText, IHTMLDocument2* pDocument);

/// Marks a document and then all its frames, to any depth. False when the document doesn't tell its frames.
bool HighlightFrames(const std::wstring& strText, IHTMLDocument2* pDocument);
