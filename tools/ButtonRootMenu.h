#pragma once

#include "band/TrelvixButton.h"

/// The first item: the menu that leads to the options, the version check and the About box.
class CButtonRootMenu : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonRootMenu)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
