#pragma once

#include "framework/Wnd.h"

#include <commctrl.h>

class CTrelvixWindow;

/// Hidden child of the toolbar that receives the control's notifications, which would else go to the browser's rebar.
class CReflexionWnd : public CWnd
{
    DECLARE_MESSAGE_MAP()

public:
    CTrelvixWindow* m_pToolbar = nullptr; ///< holds this object, so it outlives it

private:
    void OnButtonCommand(UINT nID);
    void OnToolbarDropDown(NMHDR* pHeader, LRESULT* pResult);
};
