#pragma once

#include "band/ImageListEx.h"
#include "band/LayoutString.h"
#include "band/ReflexionWnd.h"
#include "band/TrelvixButton.h"
#include "band/TVXEventManager.h"
#include "band/TVXEvents.h"
#include "framework/Handles.h"
#include "framework/ToolBarCtrl.h"

#include <windows.h>
#include <wrl/client.h>

#include <array>
#include <memory>
#include <string>

class CATLTrelvix;
struct ITrelvixMSHTMLUIHandler;

/// Control number of the toolbar, which its notifications carry.
inline constexpr UINT ToolbarControlId = 103;

/// Sent by other components of the same browser to the published toolbar window: put the focus into the search box.
inline constexpr UINT FocusSearchBoxMessage = 0x3400;

/// The visible toolbar and the hub of one browser tab: it owns the items, holds the browser, passes events, clicks,
/// keys and focus to the items of the layout. All calls come on the tab's thread. An item may run LoadLayout, which
/// replaces all items, from inside any call: the walks read their tables anew at each step. It may even end the band
/// there: the object then lasts until the call returns, if it is owned by a shared pointer.
class CTrelvixWindow : public CToolBarCtrl,
                       public ITVXEvents,
                       public CTVXEventManager,
                       public std::enable_shared_from_this<CTrelvixWindow>
{
    DECLARE_MESSAGE_MAP()

public:
    CTrelvixWindow();
    ~CTrelvixWindow() override;

    /// Creates the control with its image lists and the items of the stored layout.
    bool Create(DWORD dwStyle, const RECT& rect, HWND hWndParent, UINT nID) override;

    /// Makes all items anew and puts those of the stored layout on the toolbar. Always true. A call from inside another
    /// one, from an item that is being made or placed, takes effect when that one is done.
    bool LoadLayout();

    /// Sends the browser to `pszUrl`, in a new tab or window if wanted. False when there is no browser or no new tab
    /// and window can be had. A failed navigation in the same tab counts as done.
    bool NavigateTo(const wchar_t* pszUrl, bool bNew);

    /// Puts a new handler between the current document and the browser. On failure the browser's own handling stays.
    bool InstallUIHandler();

    /// Whether the side bar stands open in this browser; false when there is none.
    bool IsInfoBarOpen();

    /// The screen rectangle of the side bar's visible window; empty and false when there is none.
    bool GetInfoBarRect(RECT* pRect);

    /// Moves the focus from the item that has it to the next focusable one; S_FALSE when there is none in that
    /// direction.
    HRESULT MoveFocus(bool bForward);

    /// Tells the band, if there is one, that an item gained or lost the focus.
    void NotifyFocusChange(bool bFocus);

    /// Acts on the commands that a page can send by an address; see the pseudo-URLs. Both change their argument.
    bool HandleSearchWebUrl(std::wstring& strUrl);
    bool HandleNewInstanceUrl(std::wstring& strUrl);

    /// Offers a script error to each visible item, in the order of the table; an item may clear the flags.
    void FireScriptError(IHTMLDocument2* pDocument, bool* pbContinueScripts, bool* pbNotHandled);

    /// The input-object protocol of the band, as IInputObject.
    HRESULT UIActivateIO(BOOL fActivate, MSG* pMsg);
    HRESULT HasFocusIO();
    HRESULT TranslateAcceleratorIO(MSG* pMsg);

    /// Entry of the browser's events: FireInvoke.
    void Invoke(DISPID dispid, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS* pDispParams, VARIANT* pVarResult,
                EXCEPINFO* pExcepInfo, UINT* puArgErr) override;

    /// The notifications go on to each item of the layout.
    void OnPageLoadBegin(IDispatch* pFrame, LPCWSTR pszUrl) override;
    void OnPageLoadComplete(IDispatch* pFrame, LPCWSTR pszUrl) override;
    void OnFrameLoadBegin(IDispatch* pFrame, LPCWSTR pszUrl, LPCWSTR pszFramePath) override;
    void OnFrameLoadComplete(IDispatch* pFrame, LPCWSTR pszUrl) override;
    void OnPageRefreshBegin(IDispatch* pFrame, LPCWSTR pszUrl) override;
    void OnPageRefreshComplete() override;
    void OnFrameRefreshBegin(IDispatch* pFrame, LPCWSTR pszUrl, LPCWSTR pszFramePath) override;
    void OnFrameRefreshComplete() override;

    /// The item with the index, whether it stands in the layout or not; null for an index that no item has.
    CTrelvixButton* GetButton(int nIndex) const;
    /// The item with the index if it stands in the layout, else null.
    CTrelvixButton* GetVisibleButton(int nIndex) const;
    /// The layout, closed by -1.
    const std::array<int, MaxLayoutEntries + 1>& GetOrder() const { return m_aOrder; }

    /// The band that holds this window; not owned, the band takes itself away when it lets the window go.
    void SetBand(CATLTrelvix* pBand) { m_pBand = pBand; }
    CATLTrelvix* GetBand() const { return m_pBand; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    /// Keeps the object for the time of a call; null for one that no shared pointer owns.
    std::shared_ptr<CTrelvixWindow> Hold() { return weak_from_this().lock(); }

    /// First the notifications that an event causes, then the commands of a page, then the raw event to each item of
    /// the layout. Without arguments not even the items hear of it.
    void FireInvoke(DISPID dispid, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS* pDispParams, VARIANT* pVarResult,
                    EXCEPINFO* pExcepInfo, UINT* puArgErr);
    bool CreateReflexionWindow(const RECT& rect);
    void SetImageLists();
    void MakeLayout();
    void CreateButtons();
    void DestroyButtons();
    void DeleteAllButtons();
    void ReadLayout();
    void SetPadding();
    void PlaceButtons();

    void OnDestroy();
    void OnLButtonDown(UINT nFlags, POINT point);
    void OnSize(UINT nType, int cx, int cy);
    void OnTimer(UINT_PTR nIDEvent);
    void OnPaint();
    LRESULT OnThemeChanged(WPARAM wParam, LPARAM lParam);
    LRESULT OnFocusSearchBox(WPARAM wParam, LPARAM lParam);

    bool ClickIcon(UINT nFlags, POINT point);
    void FocusSearchBox();
    void ShowInfoBar();
    void HandlePseudoUrl(DISPPARAMS* pDispParams);
    /// Gives the handler the document's site and this window; false when there is no site that can do both.
    bool PrepareUIHandler(ITrelvixMSHTMLUIHandler& handler, IDispatch* pDocument);

    /// The item at a position of the layout if it is visible, else null.
    CTrelvixButton* GetLayoutButton(int nPosition) const;
    /// The position in the layout of the first focusable item that has the focus, or -1.
    int FindFocusPosition() const;

    /// Calls `action` on each visible item, in the order of the layout, until it answers true. True if one did.
    template <class Action>
    bool WalkLayout(Action action)
    {
        for (int n = 0; n < MaxLayoutEntries && m_aOrder[n] != -1; ++n)
            if (CTrelvixButton* pButton = GetLayoutButton(n); pButton != nullptr && action(*pButton))
                return true;
        return false;
    }

    /// Calls `action` on each visible item, in the order of the layout.
    template <class Action>
    void ForEachInLayout(Action action)
    {
        WalkLayout([&](CTrelvixButton& button) {
            action(button);
            return false;
        });
    }

    bool m_bHasSplitButton = false;
    CImageListEx m_imlNormal;
    CImageListEx m_imlHot;
    CImageListEx m_imlDisabled;
    CReflexionWnd m_wndReflexion;
    std::array<std::unique_ptr<CTrelvixButton>, ButtonCount> m_pButtons;
    std::array<int, MaxLayoutEntries + 1> m_aOrder;
    CATLTrelvix* m_pBand = nullptr; ///< not owned
    UINT_PTR m_nTimerId = 0;        ///< never set, and meant so: the timer runs for the life of the window
    Microsoft::WRL::ComPtr<ITrelvixMSHTMLUIHandler> m_pUIHandler;
    bool m_bMakingLayout = false;
    bool m_bLayoutOutdated = false; ///< another layout was asked for while this one was being made
};
