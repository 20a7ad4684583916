#pragma once

#include "band/TrelvixButton.h"

/// Tells of script errors in the page.
class CButtonScriptErrorAlert : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonScriptErrorAlert)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
