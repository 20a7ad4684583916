#pragma once

#include "band/TrelvixButton.h"

/// Shows the source of the page.
class CButtonViewSource : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonViewSource)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
