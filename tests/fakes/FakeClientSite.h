#pragma once

#include "notimpl/OleClientSite.h"
#include "tests/fakes/FakeObject.h"

#include <windows.h>
#include <docobj.h>
#include <mshtmhst.h>
#include <oleidl.h>

#include <vector>

/// The browser's site of a document, which decides on its interface and takes its commands. It keeps the arguments of
/// the last such call, as numbers, and answers all of them alike.
class CFakeClientSite : public CFakeObject<CFakeClientSite, COleClientSiteNotImpl, IDocHostUIHandler, IOleCommandTarget>
{
    BEGIN_COM_MAP(CFakeClientSite)
        COM_INTERFACE_ENTRY(IOleClientSite)
        COM_INTERFACE_ENTRY(IDocHostUIHandler)
        COM_INTERFACE_ENTRY(IOleCommandTarget)
    END_COM_MAP()

public:
    CFakeClientSite() : CFakeObject("ClientSite") {}

    STDMETHODIMP ShowContextMenu(DWORD dwID, POINT* ppt, IUnknown* pTarget, IDispatch* pObject) override;
    STDMETHODIMP GetHostInfo(DOCHOSTUIINFO* pInfo) override;
    STDMETHODIMP ShowUI(DWORD dwID, IOleInPlaceActiveObject* pActiveObject, IOleCommandTarget* pTarget,
                        IOleInPlaceFrame* pFrame, IOleInPlaceUIWindow* pDocument) override;
    STDMETHODIMP HideUI() override;
    STDMETHODIMP UpdateUI() override;
    STDMETHODIMP EnableModeless(BOOL bEnable) override;
    STDMETHODIMP OnDocWindowActivate(BOOL bActivate) override;
    STDMETHODIMP OnFrameWindowActivate(BOOL bActivate) override;
    STDMETHODIMP ResizeBorder(LPCRECT pRect, IOleInPlaceUIWindow* pWindow, BOOL bFrameWindow) override;
    STDMETHODIMP TranslateAccelerator(LPMSG pMsg, const GUID* pGroup, DWORD nCmdID) override;
    STDMETHODIMP GetOptionKeyPath(LPOLESTR* ppszKey, DWORD dw) override;
    STDMETHODIMP GetDropTarget(IDropTarget* pTarget, IDropTarget** ppTarget) override;
    STDMETHODIMP GetExternal(IDispatch** ppDispatch) override;
    STDMETHODIMP TranslateUrl(DWORD dwTranslate, LPWSTR pszUrlIn, LPWSTR* ppszUrlOut) override;
    STDMETHODIMP FilterDataObject(IDataObject* pObject, IDataObject** ppObject) override;

    STDMETHODIMP QueryStatus(const GUID* pGroup, ULONG nCommands, OLECMD* pCommands, OLECMDTEXT* pText) override;
    STDMETHODIMP Exec(const GUID* pGroup, DWORD nCmdID, DWORD nCmdexecopt, VARIANT* pvaIn, VARIANT* pvaOut) override;

    HRESULT m_hrAnswer = S_OK;
    std::vector<UINT_PTR> m_arguments;

private:
    template <class... Arguments>
    HRESULT Answer(const char* pszMethod, Arguments... arguments)
    {
        m_arguments = {ToNumber(arguments)...};
        return Call(pszMethod, [&] { return m_hrAnswer; });
    }

    static UINT_PTR ToNumber(const void* pArgument) { return reinterpret_cast<UINT_PTR>(pArgument); }
    static UINT_PTR ToNumber(DWORD dwArgument) { return dwArgument; }
    static UINT_PTR ToNumber(BOOL bArgument) { return bArgument; }
};
