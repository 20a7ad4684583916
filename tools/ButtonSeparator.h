#pragma once

#include "band/TrelvixButton.h"

/// A gap on the toolbar. One object stands for all gaps of a layout.
class CButtonSeparator : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonSeparator)

public:
    bool Initialize(CTrelvixWindow* pParent) override;

    /// Empty: a gap has no tooltip.
    const wchar_t* GetLabel() override;

    bool Place() override;
};
