#pragma once

#include "framework/ComboBox.h"

class CButtonSearchWeb;

/// The box of an item that takes a text. It tells its item what the user does, and shows the item's label in grey while
/// it is empty and has no focus.
class CComboSearch : public CComboBox
{
    DECLARE_MESSAGE_MAP()

public:
    /// Puts the label into an empty box, or takes it away again. The user's own text stays.
    void ShowPlaceholder(bool bShow);

    CButtonSearchWeb* m_pOwnerButton = nullptr; ///< holds this object, so it outlives it

private:
    void OnKillFocus();
    void OnSetFocus();
    void OnSelEndOk();
    void OnSelChange();
    LRESULT OnCtlColorEdit(WPARAM wParam, LPARAM lParam);
};
