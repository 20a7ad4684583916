#pragma once

#include "band/TrelvixButton.h"

/// Shows the rendering mode of the document.
class CButtonRenderingMode : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonRenderingMode)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
