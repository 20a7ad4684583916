#pragma once

#include "notimpl/CustomDoc.h"
#include "notimpl/HTMLDocument2.h"
#include "notimpl/OleContainer.h"
#include "notimpl/OleObject.h"
#include "tests/fakes/FakeObject.h"

#include <windows.h>
#include <mshtmhst.h>
#include <mshtml.h>
#include <oleidl.h>

#include <vector>

/// The document of a page or frame: the objects embedded in it, its client site and its UI handler.
class CFakeDocument : public CFakeObject<CFakeDocument, CHTMLDocument2NotImpl, COleContainerNotImpl, COleObjectNotImpl,
                                         CCustomDocNotImpl>
{
    BEGIN_COM_MAP(CFakeDocument)
        COM_INTERFACE_ENTRY(IHTMLDocument2)
        COM_INTERFACE_ENTRY(IHTMLDocument)
        COM_INTERFACE_ENTRY(IDispatch)
        COM_INTERFACE_ENTRY(IOleContainer)
        COM_INTERFACE_ENTRY(IOleObject)
        COM_INTERFACE_ENTRY(ICustomDoc)
    END_COM_MAP()

public:
    CFakeDocument() : CFakeObject("Document") {}

    /// The document as any object; borrowed.
    IUnknown* AsObject() { return static_cast<IHTMLDocument2*>(this); }

    STDMETHODIMP EnumObjects(DWORD dwFlags, IEnumUnknown** ppEnum) override;
    STDMETHODIMP GetClientSite(IOleClientSite** ppSite) override;
    STDMETHODIMP SetUIHandler(IDocHostUIHandler* pHandler) override;

    std::vector<Microsoft::WRL::ComPtr<IUnknown>> m_objects; ///< embedded, the frames' browsers among them
    Microsoft::WRL::ComPtr<IOleClientSite> m_spClientSite;
    Microsoft::WRL::ComPtr<IDocHostUIHandler> m_spUIHandler;
};
