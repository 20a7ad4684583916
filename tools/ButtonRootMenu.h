#pragma once

#include "band/TrelvixButton.h"

/// The first item, to lead to the options, the version check and the About box; it only has its place so far.
class CButtonRootMenu : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonRootMenu)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
