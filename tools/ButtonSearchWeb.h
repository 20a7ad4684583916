#pragma once

#include "band/TrelvixButton.h"

/// An item that carries a text box: the base of the search, highlight and zoom boxes. It has no index of its own.
class CButtonSearchWeb : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonSearchWeb)

public:
    /// Called by the derived classes after they stored their index.
    bool Initialize(CTrelvixWindow* pParent) override;
};
