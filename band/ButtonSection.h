#pragma once

#include <string>

/// The section of the settings that an item has for itself.
inline std::wstring GetButtonSection(int nIndex)
{
    return L"Button" + std::to_wstring(nIndex);
}
