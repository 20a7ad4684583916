#pragma once

#include "notimpl/MarkupPointer.h"
#include "tests/fakes/FakeObject.h"
#include "tests/fakes/page/PageMarkup.h"

#include <windows.h>
#include <mshtml.h>

/// A place in a page, which follows what comes into the page. It stands nowhere until it is moved.
class CFakeMarkupPointer : public CFakeObject<CFakeMarkupPointer, CMarkupPointerNotImpl>
{
    BEGIN_COM_MAP(CFakeMarkupPointer)
        COM_INTERFACE_ENTRY(IMarkupPointer)
    END_COM_MAP()

public:
    explicit CFakeMarkupPointer(std::shared_ptr<CPageMarkup> spMarkup)
        : CFakeObject("MarkupPointer"), m_spMarkup(std::move(spMarkup))
    {
    }
    ~CFakeMarkupPointer() { m_spMarkup->Drop(m_gap); }

    STDMETHODIMP Gravity(POINTER_GRAVITY* peGravity) override;
    /// In the log the side stands behind the name.
    STDMETHODIMP SetGravity(POINTER_GRAVITY eGravity) override;
    STDMETHODIMP IsPositioned(BOOL* pbPositioned) override;
    STDMETHODIMP MoveAdjacentToElement(IHTMLElement* pElement, ELEMENT_ADJACENCY eAdjacency) override;
    STDMETHODIMP MoveToPointer(IMarkupPointer* pPointer) override;
    STDMETHODIMP MoveToContainer(IMarkupContainer* pContainer, BOOL bAtStart) override;
    STDMETHODIMP IsEqualTo(IMarkupPointer* pPointer, BOOL* pbEqual) override;
    /// Without flags and without an end of the search. S_FALSE when nothing is found; both pointers stay then.
    STDMETHODIMP FindText(OLECHAR* pszText, DWORD dwFlags, IMarkupPointer* pEnd, IMarkupPointer* pEndSearch) override;

    /// Whether the pointer stands somewhere in the page.
    bool IsIn(const CPageMarkup& markup) const { return m_bPositioned && m_spMarkup.get() == &markup; }
    MarkupPosition GetPosition() const { return m_gap.next; }

private:
    HRESULT MoveTo(const std::shared_ptr<CPageMarkup>& spMarkup, MarkupPosition position);

    std::shared_ptr<CPageMarkup> m_spMarkup;
    CMarkupGap m_gap;
    bool m_bPositioned = false;
};
