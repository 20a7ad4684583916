#pragma once

#include <windows.h>

#include <string>

/// The identifier as the registry writes it, with braces and capitals.
std::wstring GetGuidText(REFGUID guid);
