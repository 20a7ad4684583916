#pragma once

#include "band/TrelvixButton.h"

/// The item that is to show and hide the sibling side bar; it only has its place so far.
class CButtonShowInfoBar : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonShowInfoBar)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
