#pragma once

#include "band/TrelvixButton.h"

/// The item that is to show the rendering mode of the document; it only has its place so far.
class CButtonRenderingMode : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonRenderingMode)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
