#include "broker/BrokerObject.h"

#include "broker/BrowserWindow.h"
#include "broker/UserSettings.h"
#include "framework/ComBoundary.h"

#include <string_view>

namespace
{
/// Whole characters, none of them null, and not too many.
bool IsSoundText(BSTR text)
{
    const UINT size = SysStringByteLen(text);
    return text != nullptr && size <= MaxSettingBytes && size % sizeof(wchar_t) == 0 &&
           wcsnlen(text, size / sizeof(wchar_t)) == size / sizeof(wchar_t);
}

std::wstring_view ViewOf(BSTR text)
{
    return {text, SysStringLen(text)};
}

HRESULT Read(BSTR key, BSTR* value)
{
    const auto path = ParseSettingPath(ViewOf(key));
    if (!path)
        return E_ACCESSDENIED;
    if (*value != nullptr && !IsSoundText(*value)) // replaced, but nothing unsound is taken
        return E_INVALIDARG;
    BSTR text = nullptr;
    const HRESULT hr = ReadUserSetting(*path, &text);
    if (FAILED(hr))
        return hr;
    SysFreeString(*value);
    *value = text;
    return S_OK;
}

HRESULT Write(BSTR key, BSTR* value)
{
    const auto path = ParseSettingPath(ViewOf(key));
    if (!path)
        return E_ACCESSDENIED;
    return IsSoundText(*value) ? WriteUserSetting(*path, *value) : E_INVALIDARG;
}

HRESULT Resize(BSTR key, BSTR* value)
{
    const auto window = ParseWindowNumber(ViewOf(key));
    const auto size = ParseWindowSize(ViewOf(*value));
    if (!window || !size)
        return E_INVALIDARG;
    return ResizeBrowserWindow(static_cast<HWND>(LongToHandle(*window)), *size);
}

struct VerbRow
{
    std::wstring_view verb;
    HRESULT (*pfnExecute)(BSTR key, BSTR* value);
};

constexpr VerbRow verbs[] = {{ReadVerb, &Read}, {WriteVerb, &Write}, {ResizeVerb, &Resize}};

HRESULT ExecuteVerb(std::wstring_view verb, BSTR key, BSTR* value)
{
    for (const VerbRow& row : verbs)
        if (row.verb == verb)
            return row.pfnExecute(key, value);
    return E_INVALIDARG;
}
} // namespace

STDMETHODIMP CBrokerObject::Execute(BSTR* verb, BSTR* key, BSTR* value)
{
    if (verb == nullptr || key == nullptr || value == nullptr)
        return E_POINTER;
    if (!IsSoundText(*verb) || !IsSoundText(*key))
        return E_INVALIDARG;
    return ComBoundary([&] { return ExecuteVerb(ViewOf(*verb), *key, value); });
}
