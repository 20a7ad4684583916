#pragma once

#include "tests/unit/tools/ToolbarFixture.h"

#include <memory>
#include <string>
#include <vector>

inline constexpr wchar_t ZoomWrapperId[] = L"__hw__trelvix__zoom__";

using ZoomWrappers = std::vector<std::shared_ptr<CMarkupElement>>;

/// The elements that scale a document's content, the outermost first.
ZoomWrappers GetZoomWrappers(const CFakeHtmlDocument& document);
/// Their zooms.
std::vector<std::wstring> GetZooms(const CFakeHtmlDocument& document);
