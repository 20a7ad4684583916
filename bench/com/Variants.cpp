#include "bench/com/Variants.h"

#include <comutil.h>

namespace
{
/// The argument converted; empty when it is missing or doesn't convert.
_variant_t Convert(const VARIANT* pv, VARTYPE vt)
{
    _variant_t value;
    if (pv != nullptr && V_VT(pv) != VT_ERROR && FAILED(VariantChangeType(&value, const_cast<VARIANT*>(pv), 0, vt)))
        value.Clear();
    return value;
}
} // namespace

std::wstring GetOptionalText(const VARIANT* pv)
{
    const _variant_t value = Convert(pv, VT_BSTR);
    return V_VT(&value) == VT_BSTR ? GetString(V_BSTR(&value)) : std::wstring();
}

long GetOptionalNumber(const VARIANT* pv)
{
    const _variant_t value = Convert(pv, VT_I4);
    return V_VT(&value) == VT_I4 ? V_I4(&value) : 0;
}

bool GetOptionalFlag(const VARIANT* pv, bool bFallback)
{
    if (pv == nullptr || V_VT(pv) == VT_EMPTY)
        return bFallback;
    const _variant_t value = Convert(pv, VT_BOOL);
    return V_VT(&value) == VT_BOOL ? V_BOOL(&value) != VARIANT_FALSE : bFallback;
}

std::string GetOptionalBytes(const VARIANT* pv)
{
    _variant_t value;
    if (pv == nullptr || FAILED(VariantCopyInd(&value, const_cast<VARIANT*>(pv))) ||
        V_VT(&value) != (VT_ARRAY | VT_UI1))
        return {};
    SAFEARRAY* const pArray = V_ARRAY(&value);
    long nLower = 0;
    long nUpper = -1;
    void* pBytes = nullptr;
    if (SafeArrayGetDim(pArray) != 1 || FAILED(SafeArrayGetLBound(pArray, 1, &nLower)) ||
        FAILED(SafeArrayGetUBound(pArray, 1, &nUpper)) || FAILED(SafeArrayAccessData(pArray, &pBytes)))
        return {};
    std::string bytes(static_cast<const char*>(pBytes), static_cast<size_t>(nUpper - nLower + 1));
    SafeArrayUnaccessData(pArray);
    return bytes;
}

std::wstring GetString(BSTR bstr)
{
    return {bstr, bstr + SysStringLen(bstr)};
}

HRESULT CopyText(const std::wstring& text, BSTR* pbstr)
{
    if (pbstr == nullptr)
        return E_POINTER;
    *pbstr = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    return *pbstr ? S_OK : E_OUTOFMEMORY;
}

VARIANT ByReference(VARIANT& v)
{
    VARIANT reference = {};
    V_VT(&reference) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&reference) = &v;
    return reference;
}

VARIANT ByReference(VARIANT_BOOL& b)
{
    VARIANT reference = {};
    V_VT(&reference) = VT_BYREF | VT_BOOL;
    V_BOOLREF(&reference) = &b;
    return reference;
}
