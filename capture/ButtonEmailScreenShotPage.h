#pragma once

#include "band/TrelvixButton.h"

/// The item that is to send a picture of the page by mail; it only has its place so far.
class CButtonEmailScreenShotPage : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonEmailScreenShotPage)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
