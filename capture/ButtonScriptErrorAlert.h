#pragma once

#include "band/TrelvixButton.h"

/// The item that is to tell of script errors in the page; it only has its place so far.
class CButtonScriptErrorAlert : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonScriptErrorAlert)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
