#pragma once

#include "band/LayoutString.h"

#include <array>

struct CRuntimeClass;

/// The class of each item, at the item's index.
const std::array<const CRuntimeClass*, ButtonCount>& GetButtonTable();

/// The class whose items take the focus when another component asks for the search box.
const CRuntimeClass* GetSearchBoxClass();
