#pragma once

#include "band/TrelvixButton.h"
#include "tools/ComboSearch.h"

#include <string>

/// An item that carries a text box: the base of the search, highlight and zoom boxes. It has no index of its own.
///
/// A search may send the browser to an address that makes all items anew: nothing may touch the item after it.
class CButtonSearchWeb : public CTrelvixButton
{
    DECLARE_DYNCREATE(CButtonSearchWeb)

public:
    ~CButtonSearchWeb() override;

    /// Called by the derived classes after they stored their index.
    bool Initialize(CTrelvixWindow* pParent) override;
    void Show(bool bShow) override;
    /// The first call creates the box on the gap in the toolbar.
    bool Place() override;
    bool HasFocus() override;
    bool TakeFocus() override;
    /// Enter runs the search, Tab moves on to the next item; the box gets all other keys before the browser can take
    /// them as its own.
    HRESULT TranslateKey(MSG* pMsg) override;
    bool Repaint() override;

    /// Acts on the text; false when there is nothing to act on. Here: sends the browser to the address that the text
    /// makes of the template.
    virtual bool Search(const std::wstring& strText);
    /// Searches for the text of the box.
    virtual bool Run();

    /// While the history is disabled nothing of it is read, shown or written.
    bool IsHistoryDisabled() const { return m_bNoHistory; }
    void LoadHistory();
    void SaveHistory();
    /// Forgets the stored words and those in the list.
    void ResetHistory();

protected:
    CComboSearch m_comboSearch;
    std::wstring m_strSearchUrl; ///< the template of the address
    bool m_bPlaceholderShown = false;
    bool m_bNoHistory = true; ///< never cleared, and meant so

private:
    friend class CComboSearch;

    bool CreateBox();
};
