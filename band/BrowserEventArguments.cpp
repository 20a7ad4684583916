#include "band/BrowserEventArguments.h"

namespace
{
const VARIANT* GetArgument(const DISPPARAMS& params, UINT nArgument)
{
    return params.rgvarg != nullptr && nArgument < params.cArgs ? &params.rgvarg[nArgument] : nullptr;
}

std::wstring ReadReferencedText(const VARIANT* pArgument)
{
    if (pArgument == nullptr || V_VT(pArgument) != (VT_BYREF | VT_VARIANT))
        return {};
    const VARIANT* pText = V_VARIANTREF(pArgument);
    if (pText == nullptr || V_VT(pText) != VT_BSTR || V_BSTR(pText) == nullptr)
        return {};
    return V_BSTR(pText);
}
} // namespace

std::optional<CNavigationArguments> ReadNavigationArguments(const DISPPARAMS& params, UINT nFrame)
{
    const VARIANT* pFrame = GetArgument(params, nFrame);
    if (pFrame == nullptr || V_VT(pFrame) != VT_DISPATCH)
        return std::nullopt;
    return CNavigationArguments {V_DISPATCH(pFrame), ReadReferencedText(GetArgument(params, nFrame - 1))};
}

VARIANT_BOOL* GetCancelFlag(const DISPPARAMS& params)
{
    const VARIANT* pCancel = GetArgument(params, 0);
    return pCancel != nullptr && V_VT(pCancel) == (VT_BYREF | VT_BOOL) ? V_BOOLREF(pCancel) : nullptr;
}
