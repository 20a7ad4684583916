#pragma once

#include "band/TrelvixButton.h"

/// Opens the page's address in the sibling tester.
class CButtonOpenPellatron : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonOpenPellatron)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
    bool Place() override;
};
