#pragma once

#include "band/TrelvixButton.h"

/// The item that is to open the spy on all browser instances; it only has its place so far.
class CButtonConnectToIEInstance : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonConnectToIEInstance)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
