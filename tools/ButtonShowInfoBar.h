#pragma once

#include "band/TrelvixButton.h"

/// Shows and hides the sibling side bar, and chooses where it stands.
class CButtonShowInfoBar : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonShowInfoBar)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
