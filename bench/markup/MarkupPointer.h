#pragma once

#include "bench/com/DocumentPart.h"
#include "notimpl/MarkupPointer.h"

#include <windows.h>
#include <mshtml.h>
#include <wrl/client.h>

#include <string>

/// A place in a document, which stays where it is when the document changes around it. Once the document is on show no
/// longer, every operation answers RPC_E_DISCONNECTED.
class CMarkupPointer : public CDocumentPart<CMarkupPointer, CMarkupPointerNotImpl>
{
    BEGIN_COM_MAP(CMarkupPointer)
        COM_INTERFACE_ENTRY(IMarkupPointer)
    END_COM_MAP()

public:
    /// A new pointer, which stands nowhere yet.
    explicit CMarkupPointer(CDocument& document);
    ~CMarkupPointer() override;

    /// The pointer behind the interface, if it is one of the document's; null otherwise.
    static Microsoft::WRL::ComPtr<CMarkupPointer> From(IMarkupPointer* pPointer, const CDocument& document);

    int GetNumber() const { return m_nPointer; }
    bool IsPositioned() const { return m_bPositioned; }

    STDMETHODIMP QueryInterface(REFIID iid, void** ppv) override;

    STDMETHODIMP Gravity(POINTER_GRAVITY* peGravity) override;
    STDMETHODIMP SetGravity(POINTER_GRAVITY eGravity) override;
    STDMETHODIMP IsPositioned(BOOL* pbPositioned) override;
    STDMETHODIMP MoveAdjacentToElement(IHTMLElement* pElement, ELEMENT_ADJACENCY eAdjacency) override;
    STDMETHODIMP MoveToPointer(IMarkupPointer* pPointer) override;
    STDMETHODIMP MoveToContainer(IMarkupContainer* pContainer, BOOL bAtStart) override;
    STDMETHODIMP IsEqualTo(IMarkupPointer* pPointer, BOOL* pbEqual) override;
    /// Knows no flags, and no end of the search but the document's. The pointer that goes to the hit's end may be null.
    STDMETHODIMP FindText(OLECHAR* pszText, DWORD dwFlags, IMarkupPointer* pEnd, IMarkupPointer* pEndSearch) override;

private:
    CDocumentMarkup& GetMarkup() const { return GetDocumentObject().GetMarkup(); }

    /// Runs the body of an operation when the document is on show. No exception leaves it.
    template <class Body>
    HRESULT WithPage(Body body) const
    {
        return ComBoundary([&]() -> HRESULT { return GetDocumentObject().IsOnShow() ? body() : RPC_E_DISCONNECTED; });
    }

    HRESULT Search(const std::wstring& text, CMarkupPointer* pEnd);

    int m_nPointer; ///< in markup.js
    POINTER_GRAVITY m_eGravity = POINTER_GRAVITY_Left;
    bool m_bPositioned = false;
};
