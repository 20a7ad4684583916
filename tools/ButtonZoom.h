#pragma once

#include "tools/ButtonSearchWeb.h"

/// Takes the zoom of the page in per cent.
class CButtonZoom : public CButtonSearchWeb
{
    DECLARE_DYNCREATE(CButtonZoom)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
