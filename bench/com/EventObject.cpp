#include "bench/com/EventObject.h"

#include "bench/com/Variants.h"

#include <iterator>

namespace
{
enum : DISPID
{
    DispidErrorLine = 1,
    DispidErrorCharacter,
    DispidErrorCode,
    DispidErrorMessage,
    DispidErrorUrl,
};

DISPID FindProperty(LPCWSTR pszName)
{
    static constexpr LPCWSTR names[] = {L"errorLine", L"errorCharacter", L"errorCode", L"errorMessage", L"errorUrl"};
    for (size_t i = 0; i < std::size(names); ++i)
        if (pszName != nullptr && lstrcmpiW(pszName, names[i]) == 0)
            return DispidErrorLine + static_cast<DISPID>(i);
    return DISPID_UNKNOWN;
}

HRESULT Give(long nValue, VARIANT* pvResult)
{
    V_VT(pvResult) = VT_I4;
    V_I4(pvResult) = nValue;
    return S_OK;
}

HRESULT Give(const std::wstring& text, VARIANT* pvResult)
{
    V_VT(pvResult) = VT_BSTR;
    return CopyText(text, &V_BSTR(pvResult));
}
} // namespace

STDMETHODIMP CEventObject::GetIDsOfNames(REFIID, LPOLESTR* ppszNames, UINT cNames, LCID, DISPID* pDispids)
{
    if (ppszNames == nullptr || pDispids == nullptr || cNames != 1)
        return E_INVALIDARG;
    *pDispids = FindProperty(*ppszNames);
    return *pDispids == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
}

STDMETHODIMP CEventObject::Invoke(DISPID dispid, REFIID, LCID, WORD wFlags, DISPPARAMS*, VARIANT* pvResult, EXCEPINFO*,
                                  UINT*)
{
    if (pvResult == nullptr || !(wFlags & DISPATCH_PROPERTYGET))
        return E_INVALIDARG;
    VariantInit(pvResult);
    switch (dispid)
    {
    case DispidErrorLine:
        return Give(m_error.nLine, pvResult);
    case DispidErrorCharacter:
        return Give(m_error.nCharacter, pvResult);
    case DispidErrorCode:
        return Give(0, pvResult);
    case DispidErrorMessage:
        return Give(m_error.strMessage, pvResult);
    case DispidErrorUrl:
        return Give(m_error.strUrl, pvResult);
    default:
        return DISP_E_MEMBERNOTFOUND;
    }
}

STDMETHODIMP CEventObject::get_type(BSTR* pbstrType)
{
    return CopyText(L"error", pbstrType);
}
