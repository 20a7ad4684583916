#pragma once

#include <windows.h>
#include <oaidl.h>

#include <string>

/// Optional arguments as callers give them: by value or by reference, missing (null, VT_EMPTY, VT_ERROR), or of a type
/// that converts.
std::wstring GetOptionalText(const VARIANT* pv);
long GetOptionalNumber(const VARIANT* pv);
bool GetOptionalFlag(const VARIANT* pv, bool bFallback);
/// The bytes of an array of VT_UI1; empty for anything else.
std::string GetOptionalBytes(const VARIANT* pv);

/// The text of a BSTR, empty for null.
std::wstring GetString(BSTR bstr);

/// Hands a text out as a BSTR; E_POINTER without an out pointer.
HRESULT CopyText(const std::wstring& text, BSTR* pbstr);

/// A reference to a variant, as events pass arguments; the variant must outlive it.
VARIANT ByReference(VARIANT& v);
/// The same to a flag.
VARIANT ByReference(VARIANT_BOOL& b);
