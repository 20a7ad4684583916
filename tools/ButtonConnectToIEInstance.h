#pragma once

#include "band/TrelvixButton.h"

/// Opens the spy on all browser instances.
class CButtonConnectToIEInstance : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonConnectToIEInstance)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
