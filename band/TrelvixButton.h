#pragma once

#include "band/LayoutString.h"
#include "band/TVXEvents.h"
#include "framework/Object.h"

#include <windows.h>
#include <commctrl.h>

#include <memory>
#include <string>

class CTrelvixWindow;
struct IHTMLDocument2;

/// Command number of the item with index 0; an item's command is this plus its index.
inline constexpr int FirstButtonCommand = 1024;

/// The index of the item with the command number; -1 for a number below all of theirs.
constexpr int GetIndexOfCommand(int nCommand)
{
    return nCommand < FirstButtonCommand ? -1 : nCommand - FirstButtonCommand;
}

/// String number of the label of the item with index 0.
inline constexpr UINT FirstButtonLabel = 1000;

/// One item of the toolbar. Its index names it everywhere: command, label, image and settings section follow from it.
/// The window makes all items anew with each layout, so fields last no longer than that. An item whose handler can
/// reach LoadLayout (by a dialog, a menu or the browser) must not touch its members afterwards: it may be gone.
class CTrelvixButton : public CObject, public ITVXEvents
{
    DECLARE_DYNCREATE(CTrelvixButton)

public:
    /// Fills the button's record and adds its label to the control. A class stores its index first, then calls this,
    /// then adjusts the style. A null parent leaves the window unset.
    virtual bool Initialize(CTrelvixWindow* pParent);

    /// Told true when the item stands in the layout.
    virtual void Show(bool bShow);

    /// The label, loaded on first use. Owned by the item; valid until the next SetLabel.
    virtual const wchar_t* GetLabel();

    /// A click on the item's body.
    virtual bool OnCommand(UINT nCommand);

    /// Every event of the browser, with the arguments of its IDispatch::Invoke.
    virtual void OnBrowserEvent(DISPID dispid, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS* pDispParams,
                                VARIANT* pVarResult, EXCEPINFO* pExcepInfo, UINT* puArgErr);

    /// Gives an item with a control its width, right after its button entered the toolbar as the last one.
    virtual bool Place();

    virtual bool HasFocus();

    /// Takes the keyboard focus; false when the item can't.
    virtual bool TakeFocus();

    /// A key while the item has the focus; S_OK when it was used.
    virtual HRESULT TranslateKey(MSG* pMsg);

    /// A press on the icon, before the control starts its click; true ends the handling of the press.
    virtual bool OnIconClick(UINT nFlags, POINT point);

    /// A click on the drop-down arrow, or anywhere for an item that is all menu.
    virtual bool OnDropDown(NMTOOLBARW* pNotification, int nCommand);

    /// Draws the item's control again.
    virtual bool Repaint();

    /// A script error of the page. The item may clear the flags: whether scripts go on, whether the browser is to
    /// handle the error as well.
    virtual bool OnScriptError(IHTMLDocument2* pDocument, bool* pbContinueScripts, bool* pbNotHandled);

    /// Shows another text. The control must be told by TB_ADDSTRINGW again.
    void SetLabel(const wchar_t* pszLabel);
    /// The label closed by a second terminator, as the control wants it.
    const wchar_t* GetLabelList();

    const TBBUTTON& GetTBButton() const { return m_tbButton; }
    bool IsVisible() const { return m_bVisible; }
    int GetButtonId() const { return m_nButtonId; }
    bool HasControl() const { return m_bHasControl; }
    bool IsFocusable() const { return m_bFocusable; }

protected:
    /// Makes the button in the control, addressed by `nMask` and `nButton`, a gap of the item's width.
    void SetGapWidth(DWORD dwMask, int nButton);
    /// True when the item has both a control and a toolbar to place it on.
    bool CanPlace() const { return m_bHasControl && m_pToolbar != nullptr; }

    TBBUTTON m_tbButton = {};
    bool m_bVisible = false;
    int m_nButtonId = -1;
    std::unique_ptr<wchar_t[]> m_pszLabel;
    std::unique_ptr<wchar_t[]> m_pszLabelList;
    CTrelvixWindow* m_pToolbar = nullptr; ///< owns this item, so it outlives it
    bool m_bHasControl = false;
    int m_nControlWidth = -1;
    bool m_bFocusable = false;
    bool m_bHasFocus = false;
};
