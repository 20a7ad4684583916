#pragma once

#include "band/TrelvixButton.h"

/// The item that is to open the page's address in the sibling tester; it only has its place so far.
class CButtonOpenPellatron : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonOpenPellatron)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
    bool Place() override;
};
