#pragma once

#include <windows.h>

#include <vector>

/// The toolbars that are registered with the browser, in the order of the registry.
std::vector<CLSID> GetRegisteredToolbars();

/// Where an Explorer bar stands, by the component category that it is registered with.
enum class EBarPlace
{
    None, ///< no Explorer bar
    Left,
    Bottom,
};
EBarPlace GetBarPlace(REFCLSID clsid);
