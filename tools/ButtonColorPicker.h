#pragma once

#include "band/TrelvixButton.h"

/// Reads colours from the screen.
class CButtonColorPicker : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonColorPicker)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
