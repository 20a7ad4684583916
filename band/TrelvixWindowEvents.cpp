#include "band/TrelvixWindow.h"

#include <exdispid.h>

void CTrelvixWindow::Invoke(DISPID dispid, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS* pDispParams,
                            VARIANT* pVarResult, EXCEPINFO* pExcepInfo, UINT* puArgErr)
{
    const auto spThis = Hold();
    FireInvoke(dispid, riid, lcid, wFlags, pDispParams, pVarResult, pExcepInfo, puArgErr);
}

void CTrelvixWindow::FireInvoke(DISPID dispid, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS* pDispParams,
                                VARIANT* pVarResult, EXCEPINFO* pExcepInfo, UINT* puArgErr)
{
    if (pDispParams == nullptr)
        return;
    if (GetWebBrowser() != nullptr)
    {
        CTVXEventManager::Invoke(dispid, riid, lcid, wFlags, pDispParams, pVarResult, pExcepInfo, puArgErr);
        if (dispid == DISPID_BEFORENAVIGATE2)
            HandlePseudoUrl(pDispParams);
        // Of whatever frame, and always on the top-level document.
        if (dispid == DISPID_NAVIGATECOMPLETE2)
            InstallUIHandler();
    }
    ForEachInLayout([&](CTrelvixButton& button) {
        button.OnBrowserEvent(dispid, riid, lcid, wFlags, pDispParams, pVarResult, pExcepInfo, puArgErr);
    });
}

void CTrelvixWindow::FireScriptError(IHTMLDocument2* pDocument, bool* pbContinueScripts, bool* pbNotHandled)
{
    const auto spThis = Hold();
    for (int nIndex = 0; nIndex < ButtonCount; ++nIndex)
        if (CTrelvixButton* pButton = GetVisibleButton(nIndex))
            pButton->OnScriptError(pDocument, pbContinueScripts, pbNotHandled);
}

void CTrelvixWindow::OnPageLoadBegin(IDispatch* pFrame, LPCWSTR pszUrl)
{
    ForEachInLayout([&](CTrelvixButton& button) { button.OnPageLoadBegin(pFrame, pszUrl); });
}

void CTrelvixWindow::OnPageLoadComplete(IDispatch* pFrame, LPCWSTR pszUrl)
{
    ForEachInLayout([&](CTrelvixButton& button) { button.OnPageLoadComplete(pFrame, pszUrl); });
}

void CTrelvixWindow::OnFrameLoadBegin(IDispatch* pFrame, LPCWSTR pszUrl, LPCWSTR pszFramePath)
{
    ForEachInLayout([&](CTrelvixButton& button) { button.OnFrameLoadBegin(pFrame, pszUrl, pszFramePath); });
}

void CTrelvixWindow::OnFrameLoadComplete(IDispatch* pFrame, LPCWSTR pszUrl)
{
    ForEachInLayout([&](CTrelvixButton& button) { button.OnFrameLoadComplete(pFrame, pszUrl); });
}

void CTrelvixWindow::OnPageRefreshBegin(IDispatch* pFrame, LPCWSTR pszUrl)
{
    ForEachInLayout([&](CTrelvixButton& button) { button.OnPageRefreshBegin(pFrame, pszUrl); });
}

void CTrelvixWindow::OnPageRefreshComplete()
{
    ForEachInLayout([](CTrelvixButton& button) { button.OnPageRefreshComplete(); });
}

void CTrelvixWindow::OnFrameRefreshBegin(IDispatch* pFrame, LPCWSTR pszUrl, LPCWSTR pszFramePath)
{
    ForEachInLayout([&](CTrelvixButton& button) { button.OnFrameRefreshBegin(pFrame, pszUrl, pszFramePath); });
}

void CTrelvixWindow::OnFrameRefreshComplete()
{
    ForEachInLayout([](CTrelvixButton& button) { button.OnFrameRefreshComplete(); });
}
