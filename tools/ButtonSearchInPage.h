#pragma once

#include "tools/ButtonSearchWeb.h"

/// Marks the text of its box in the page and its frames. The box remembers the words, newest on top, as long as the
/// item lives.
class CButtonSearchInPage : public CButtonSearchWeb
{
    DECLARE_DYNCREATE(CButtonSearchInPage)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
    bool Search(const std::wstring& strText) override;
};
