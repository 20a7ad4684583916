#include "band/ReflexionWnd.h"

#include "band/TrelvixWindow.h"

BEGIN_MESSAGE_MAP(CReflexionWnd, CWnd)
    ON_COMMAND_RANGE(FirstButtonCommand, FirstButtonCommand + ButtonCount - 1, OnButtonCommand)
    ON_NOTIFY(TBN_DROPDOWN, ToolbarControlId, OnToolbarDropDown)
END_MESSAGE_MAP()

void CReflexionWnd::OnButtonCommand(UINT nID)
{
    if (CTrelvixButton* pButton = m_pToolbar ? m_pToolbar->GetVisibleButton(GetIndexOfCommand(nID)) : nullptr)
        pButton->OnCommand(nID);
}

void CReflexionWnd::OnToolbarDropDown(NMHDR* pHeader, LRESULT* pResult)
{
    auto* pNotification = reinterpret_cast<NMTOOLBARW*>(pHeader);
    const int nCommand = pNotification->iItem;
    *pResult = TBDDRET_DEFAULT;
    if (CTrelvixButton* pButton = m_pToolbar ? m_pToolbar->GetVisibleButton(GetIndexOfCommand(nCommand)) : nullptr)
        pButton->OnDropDown(pNotification, nCommand);
}
