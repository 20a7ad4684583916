#pragma once

#include <memory>
#include <string>

class CPageMarkup;

/// Makes a page of a source: elements with attributes in double quotes, and text. A source without a BODY or FRAMESET
/// is the content of a body. Ends that are left out come where the parent ends.
std::shared_ptr<CPageMarkup> ReadMarkup(const std::wstring& strSource);
