#pragma once

#include "tools/ButtonSearchWeb.h"

/// Takes the zoom of the page in per cent. The zoom lives in the page alone: a page that is loaded anew stands at 100%
/// again, and the box says so. While anything loads the box is disabled.
class CButtonZoom : public CButtonSearchWeb
{
    DECLARE_DYNCREATE(CButtonZoom)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
    bool Place() override;
    /// Scales the page. A number out of bounds is corrected in the box only.
    bool Search(const std::wstring& strText) override;

    void OnPageLoadBegin(IDispatch* pFrame, LPCWSTR pszUrl) override;
    void OnPageLoadComplete(IDispatch* pFrame, LPCWSTR pszUrl) override;
    void OnFrameLoadBegin(IDispatch* pFrame, LPCWSTR pszUrl, LPCWSTR pszFramePath) override;
    void OnFrameLoadComplete(IDispatch* pFrame, LPCWSTR pszUrl) override;
    void OnPageRefreshBegin(IDispatch* pFrame, LPCWSTR pszUrl) override;
    void OnPageRefreshComplete() override;
    void OnFrameRefreshBegin(IDispatch* pFrame, LPCWSTR pszUrl, LPCWSTR pszFramePath) override;
    void OnFrameRefreshComplete() override;

private:
    void ShowPercent(long nPercent);
    void Enable(bool bEnable);
};
