#pragma once

#include "tools/ButtonSearchWeb.h"

/// Marks the text of its box in the page.
class CButtonSearchInPage : public CButtonSearchWeb
{
    DECLARE_DYNCREATE(CButtonSearchInPage)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
