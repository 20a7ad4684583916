#pragma once

#include "band/TrelvixButton.h"

/// The item that is to show the source of the page; it only has its place so far.
class CButtonViewSource : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonViewSource)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
