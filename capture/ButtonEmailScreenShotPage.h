#pragma once

#include "band/TrelvixButton.h"

/// Sends a picture of the page by mail.
class CButtonEmailScreenShotPage : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonEmailScreenShotPage)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
