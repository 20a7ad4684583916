#pragma once

#include "framework/ComModule.h"

#include <span>

/// The creatable classes of the library, in the order of their registration.
std::span<const CComClassEntry> GetClassTable();
