#pragma once

#include "band/TrelvixButton.h"

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

/// The arguments of an event of the browser, as an item was given them. The pointers are for comparison.
struct CRawEvent
{
    DISPID dispid;
    IID iid;
    LCID lcid;
    WORD wFlags;
    const DISPPARAMS* pDispParams;
    const VARIANT* pVarResult;
    const EXCEPINFO* pExcepInfo;
    const UINT* puArgErr;
};

/// What the fake items are and answer, what they were told, and the test's own part in it. One for the program; each
/// test starts with `Reset`.
class CFakeButtons
{
public:
    struct CTraits
    {
        bool bCanBeCreated = true;
        bool bHasControl = false;
        bool bFocusable = false;
        bool bTakesFocus = true;
        bool bHasFocus = false;
        bool bTakesIconClick = false;
        BYTE fsStyle = BTNS_BUTTON; ///< of its button on the toolbar
        HRESULT hrTranslateKey = S_OK;
        bool bTakesScriptErrors = false;
        bool bContinuesScripts = true; ///< the answer to a script error that it takes
    };

    static CFakeButtons& Get();

    /// Forgets everything, and gives the memory of all items that are gone back to the heap.
    void Reset();

    /// Keeps what an item was told ("4 OnCommand 1028"), and lets the test act within the call.
    void Tell(int nIndex, const std::string& strCall);
    /// What was told since the last time.
    std::vector<std::string> TakeCalls() { return std::exchange(m_calls, {}); }

    CTraits& operator[](int nIndex) { return m_traits[nIndex]; }

    /// Called within each call, after it was kept, and within Initialize ("4 Initialize"), which is not kept.
    std::function<void(const std::string& strCall)> m_onCall;
    CRawEvent m_lastEvent = {};
    int m_nLiving = 0;
    int m_nCreated = 0;

private:
    friend class CFakeButton;

    void LetTestAct(const std::string& strCall) const;

    std::array<CTraits, ButtonCount> m_traits;
    std::vector<std::string> m_calls;
    std::vector<void*> m_graves; ///< the items that are gone; their memory is poisoned and not used again
};

/// An item that answers as it is told and keeps what it is told. Its memory is overwritten when it goes, so that a walk
/// which still holds it doesn't get far.
class CFakeButton : public CTrelvixButton
{
public:
    explicit CFakeButton(int nIndex);
    ~CFakeButton() override;

    static void* operator new(std::size_t nSize);
    static void operator delete(void* pMemory, std::size_t nSize);

    const CRuntimeClass* GetRuntimeClass() const override;

    bool Initialize(CTrelvixWindow* pParent) override;
    void Show(bool bShow) override;
    bool OnCommand(UINT nCommand) override;
    void OnBrowserEvent(DISPID dispid, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS* pDispParams,
                        VARIANT* pVarResult, EXCEPINFO* pExcepInfo, UINT* puArgErr) override;
    bool Place() override;
    bool HasFocus() override;
    bool TakeFocus() override;
    HRESULT TranslateKey(MSG* pMsg) override;
    bool OnIconClick(UINT nFlags, POINT point) override;
    bool OnDropDown(NMTOOLBARW* pNotification, int nCommand) override;
    bool Repaint() override;
    bool OnScriptError(IHTMLDocument2* pDocument, bool* pbContinueScripts, bool* pbNotHandled) override;

    void OnPageLoadBegin(IDispatch* pFrame, LPCWSTR pszUrl) override;
    void OnPageLoadComplete(IDispatch* pFrame, LPCWSTR pszUrl) override;
    void OnFrameLoadBegin(IDispatch* pFrame, LPCWSTR pszUrl, LPCWSTR pszFramePath) override;
    void OnFrameLoadComplete(IDispatch* pFrame, LPCWSTR pszUrl) override;
    void OnPageRefreshBegin(IDispatch* pFrame, LPCWSTR pszUrl) override;
    void OnPageRefreshComplete() override;
    void OnFrameRefreshBegin(IDispatch* pFrame, LPCWSTR pszUrl, LPCWSTR pszFramePath) override;
    void OnFrameRefreshComplete() override;
    void OnSpareEvent() override;

private:
    const CFakeButtons::CTraits& GetTraits() const { return CFakeButtons::Get()[m_nButtonId]; }
    void Tell(const std::string& strCall) const { CFakeButtons::Get().Tell(m_nButtonId, strCall); }
};
