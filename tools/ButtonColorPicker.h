#pragma once

#include "band/TrelvixButton.h"

/// The item that is to read colours from the screen; it only has its place so far.
class CButtonColorPicker : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonColorPicker)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
