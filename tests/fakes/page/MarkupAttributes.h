#pragma once

#include "tests/fakes/page/PageMarkup.h"

/// Makes an element of a tag's name and its attributes as they stand in a source: `ID = "x" STYLE="zoom: 150%"`.
std::shared_ptr<CMarkupElement> MakeElement(std::wstring_view strTag, std::wstring_view strAttributes);
