#pragma once

#include <windows.h>

/// Class of the sibling side bar, and the browser property under which it publishes itself.
inline constexpr wchar_t InfoBarClass[] = L"{947E34E9-1D85-43CB-9CBF-5C492118FDD5}";

/// Browser property with the address of the side bar's helper, in a VT_I8.
inline constexpr wchar_t InfoBarHelperProperty[] = L"3455D989-81AF-4942-8D70-5AF74B63B37F";

/// The helper object of the side bar for one browser. It belongs to the side bar.
class IInfoBarHelper
{
public:
    virtual HRESULT STDMETHODCALLTYPE IsOpen(BYTE* pbOpen) = 0;

protected:
    ~IInfoBarHelper() = default;
};
