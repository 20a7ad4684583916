#include "tests/fakes/FakeClientSite.h"

STDMETHODIMP CFakeClientSite::ShowContextMenu(DWORD dwID, POINT* ppt, IUnknown* pTarget, IDispatch* pObject)
{
    return Answer("ShowContextMenu", dwID, ppt, pTarget, pObject);
}

STDMETHODIMP CFakeClientSite::GetHostInfo(DOCHOSTUIINFO* pInfo)
{
    return Answer("GetHostInfo", pInfo);
}

STDMETHODIMP CFakeClientSite::ShowUI(DWORD dwID, IOleInPlaceActiveObject* pActiveObject, IOleCommandTarget* pTarget,
                                     IOleInPlaceFrame* pFrame, IOleInPlaceUIWindow* pDocument)
{
    return Answer("ShowUI", dwID, pActiveObject, pTarget, pFrame, pDocument);
}

STDMETHODIMP CFakeClientSite::HideUI()
{
    return Answer("HideUI");
}

STDMETHODIMP CFakeClientSite::UpdateUI()
{
    return Answer("UpdateUI");
}

STDMETHODIMP CFakeClientSite::EnableModeless(BOOL bEnable)
{
    return Answer("EnableModeless", bEnable);
}

STDMETHODIMP CFakeClientSite::OnDocWindowActivate(BOOL bActivate)
{
    return Answer("OnDocWindowActivate", bActivate);
}

STDMETHODIMP CFakeClientSite::OnFrameWindowActivate(BOOL bActivate)
{
    return Answer("OnFrameWindowActivate", bActivate);
}

STDMETHODIMP CFakeClientSite::ResizeBorder(LPCRECT pRect, IOleInPlaceUIWindow* pWindow, BOOL bFrameWindow)
{
    return Answer("ResizeBorder", pRect, pWindow, bFrameWindow);
}

STDMETHODIMP CFakeClientSite::TranslateAccelerator(LPMSG pMsg, const GUID* pGroup, DWORD nCmdID)
{
    return Answer("TranslateAccelerator", pMsg, pGroup, nCmdID);
}

STDMETHODIMP CFakeClientSite::GetOptionKeyPath(LPOLESTR* ppszKey, DWORD dw)
{
    return Answer("GetOptionKeyPath", ppszKey, dw);
}

STDMETHODIMP CFakeClientSite::GetDropTarget(IDropTarget* pTarget, IDropTarget** ppTarget)
{
    return Answer("GetDropTarget", pTarget, ppTarget);
}

STDMETHODIMP CFakeClientSite::GetExternal(IDispatch** ppDispatch)
{
    return Answer("GetExternal", ppDispatch);
}

STDMETHODIMP CFakeClientSite::TranslateUrl(DWORD dwTranslate, LPWSTR pszUrlIn, LPWSTR* ppszUrlOut)
{
    return Answer("TranslateUrl", dwTranslate, pszUrlIn, ppszUrlOut);
}

STDMETHODIMP CFakeClientSite::FilterDataObject(IDataObject* pObject, IDataObject** ppObject)
{
    return Answer("FilterDataObject", pObject, ppObject);
}

STDMETHODIMP CFakeClientSite::QueryStatus(const GUID* pGroup, ULONG nCommands, OLECMD* pCommands, OLECMDTEXT* pText)
{
    return Answer("QueryStatus", pGroup, nCommands, pCommands, pText);
}

STDMETHODIMP CFakeClientSite::Exec(const GUID* pGroup, DWORD nCmdID, DWORD nCmdexecopt, VARIANT* pvaIn, VARIANT* pvaOut)
{
    return Answer("Exec", pGroup, nCmdID, nCmdexecopt, pvaIn, pvaOut);
}
