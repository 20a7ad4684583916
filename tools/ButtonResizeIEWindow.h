#pragma once

#include "band/TrelvixButton.h"

/// Sets the browser window to a chosen size.
class CButtonResizeIEWindow : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonResizeIEWindow)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
