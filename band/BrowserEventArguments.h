#pragma once

#include <windows.h>
#include <oaidl.h>

#include <optional>
#include <string>

/// What a navigation event of the browser is about.
struct CNavigationArguments
{
    IDispatch* pFrame; ///< browser object of the page or frame, borrowed from the event; may be null
    std::wstring strUrl;
};

/// Position of the frame in the reversed arguments of DISPID_BEFORENAVIGATE2 and of DISPID_DOCUMENTCOMPLETE.
constexpr UINT BeforeNavigateFrame = 6;
constexpr UINT DocumentCompleteFrame = 1;

/// Reads the frame at the given position and the address, which stands before it. Arguments may be of any number and
/// type: without a frame there is no result, without the text of an address it is empty.
std::optional<CNavigationArguments> ReadNavigationArguments(const DISPPARAMS& params, UINT nFrame);

/// The flag that cancels the navigation of a DISPID_BEFORENAVIGATE2, inside the sender's variable; null without one.
VARIANT_BOOL* GetCancelFlag(const DISPPARAMS& params);
