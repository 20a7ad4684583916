#pragma once

#include "band/TrelvixButton.h"

/// The item that is to set the browser window to a chosen size; it only has its place so far.
class CButtonResizeIEWindow : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonResizeIEWindow)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
