#include "band/TVXEventManager.h"

#include "band/BrowserEventArguments.h"
#include "band/TVXEvents.h"
#include "framework/ComQuery.h"

#include <windows.h>
#include <comutil.h>
#include <exdispid.h>

#include <algorithm>
#include <cwchar>

using Microsoft::WRL::ComPtr;

namespace
{
constexpr wchar_t TopLevelPath[] = L"1.";

/// Whether a navigation to the address never becomes one of the page.
bool IsUncountedUrl(const std::wstring& strUrl)
{
    // Nine characters of "view-source:" are compared, not all: meant so.
    return _wcsnicmp(strUrl.c_str(), L"javascript:", 11) == 0 || _wcsnicmp(strUrl.c_str(), L"vbscript:", 9) == 0 ||
           _wcsnicmp(strUrl.c_str(), L"view-source:", 9) == 0;
}

std::wstring GetFrameUrl(IDispatch* pFrame)
{
    const ComPtr<IWebBrowser2> spBrowser = QueryFor<IWebBrowser2>(pFrame);
    _bstr_t bstrUrl;
    if (!spBrowser || FAILED(spBrowser->get_LocationURL(bstrUrl.GetAddress())) || !bstrUrl)
        return {};
    return static_cast<const wchar_t*>(bstrUrl);
}

ComPtr<IEnumUnknown> EnumEmbeddedObjects(IDispatch* pFrame)
{
    const ComPtr<IWebBrowser2> spBrowser = QueryFor<IWebBrowser2>(pFrame);
    ComPtr<IDispatch> spDocument;
    if (!spBrowser || FAILED(spBrowser->get_Document(&spDocument)))
        return nullptr;
    const ComPtr<IOleContainer> spContainer = QueryFor<IOleContainer>(spDocument.Get());
    ComPtr<IEnumUnknown> spEnum;
    if (!spContainer || FAILED(spContainer->EnumObjects(OLECONTF_EMBEDDINGS, &spEnum)))
        return nullptr;
    return spEnum;
}

/// The embedded object as a frame's browser; null for an object of another kind.
ComPtr<IDispatch> GetFrameBrowser(IUnknown* pObject)
{
    return QueryFor<IDispatch>(QueryFor<IWebBrowser2>(pObject).Get());
}
} // namespace

bool CTVXEventManager::IsTargetFrame(IDispatch* pTarget, IDispatch* pCurrent)
{
    if (IsSameObject(pTarget, pCurrent))
        return true;
    const ComPtr<IWebBrowser2> spBrowser = QueryFor<IWebBrowser2>(pCurrent);
    READYSTATE eReadyState = READYSTATE_COMPLETE;
    if (!spBrowser || FAILED(spBrowser->get_ReadyState(&eReadyState)))
        return false;
    return eReadyState != READYSTATE_COMPLETE;
}

bool CTVXEventManager::FindLoadingFrame(IDispatch* pTarget, const std::wstring& strPath, IDispatch* pCurrent,
                                        std::wstring& strFoundPath, ComPtr<IDispatch>& spFoundFrame)
{
    if (IsTargetFrame(pTarget, pCurrent))
    {
        strFoundPath = strPath;
        spFoundFrame = pCurrent;
        return true;
    }
    const ComPtr<IEnumUnknown> spObjects = EnumEmbeddedObjects(pCurrent);
    if (!spObjects)
        return false;
    int nNumber = 0;
    ComPtr<IUnknown> spObject;
    while (spObjects->Next(1, spObject.ReleaseAndGetAddressOf(), nullptr) == S_OK)
    {
        const ComPtr<IDispatch> spChild = GetFrameBrowser(spObject.Get());
        if (!spChild)
            continue;
        const std::wstring strChildPath = strPath + std::to_wstring(++nNumber) + L".";
        if (FindLoadingFrame(pTarget, strChildPath, spChild.Get(), strFoundPath, spFoundFrame))
            return true;
    }
    return false;
}

void CTVXEventManager::Invoke(DISPID dispid, REFIID, LCID, WORD, DISPPARAMS* pDispParams, VARIANT*, EXCEPINFO*, UINT*)
{
    if (pDispParams == nullptr || !m_spWebBrowser || m_pEvents == nullptr)
        return;
    switch (dispid)
    {
    case DISPID_BEFORENAVIGATE2:
        return OnBeforeNavigate(*pDispParams);
    case DISPID_DOWNLOADBEGIN:
        return OnDownloadBegin();
    case DISPID_DOWNLOADCOMPLETE:
        return OnDownloadComplete();
    case DISPID_DOCUMENTCOMPLETE:
        return OnDocumentComplete(*pDispParams);
    case DISPID_FILEDOWNLOAD:
        return OnFileDownload();
    }
}

void CTVXEventManager::OnBeforeNavigate(const DISPPARAMS& params)
{
    const auto arguments = ReadNavigationArguments(params, BeforeNavigateFrame);
    if (!arguments || IsUncountedUrl(arguments->strUrl))
        return;
    if (m_pLastFrame == nullptr || m_pLastFrame != arguments->pFrame)
        ++m_nNavigations;
    m_pLastFrame = arguments->pFrame;
    if (m_nNavigations != 1 || m_eState != StateIdle)
        return;

    std::wstring strPath;
    ComPtr<IDispatch> spFound;
    if (FindLoadingFrame(arguments->pFrame, TopLevelPath, m_spWebBrowser.Get(), strPath, spFound))
        BeginLoad(arguments->pFrame, arguments->strUrl, strPath); // the event's frame, not the one found: meant so
    else
        m_strPendingUrl = arguments->strUrl;
}

void CTVXEventManager::OnDownloadBegin()
{
    ++m_nDownloads;
    if (m_nDownloads != 1 || m_eState != StateIdle)
        return;
    if (m_nNavigations == 0)
        BeginRefreshOfLoadingFrame();
    else if (m_nNavigations == 1)
        BeginPendingLoad();
}

void CTVXEventManager::OnDownloadComplete()
{
    m_nDownloads = std::max(m_nDownloads - 1, 0);
    if (m_nDownloads != 0)
        return;
    if (m_eState == StatePageRefresh)
        FirePageRefreshComplete();
    else if (m_eState == StateFrameRefresh)
        FireFrameRefreshComplete();
    else
        return;
    BecomeIdle();
}

void CTVXEventManager::OnDocumentComplete(const DISPPARAMS& params)
{
    const auto arguments = ReadNavigationArguments(params, DocumentCompleteFrame);
    if (!arguments)
        return;
    m_pLastFrame = nullptr;
    --m_nNavigations;
    if (m_nNavigations != 0 && IsSameObject(arguments->pFrame, m_spWebBrowser.Get()))
    {
        // The top-level page is complete, whatever else was counted.
        m_nNavigations = 0;
        m_nDownloads = 0;
    }
    if (m_nNavigations == 0)
        EndLoad(*arguments);
    m_nNavigations = std::max(m_nNavigations, 0);
}

void CTVXEventManager::OnFileDownload()
{
    if (m_nNavigations != 1 || m_eState == StateIdle)
        return;
    EndForFileDownload();
    m_nNavigations = std::max(m_nNavigations - 1, 0);
    BecomeIdle();
}

void CTVXEventManager::BeginLoad(IDispatch* pFrame, const std::wstring& strUrl, const std::wstring& strPath)
{
    const bool bPage = strPath == TopLevelPath;
    if (bPage)
        FirePageLoadBegin(pFrame, strUrl);
    else
        FireFrameLoadBegin(pFrame, strUrl, strPath);
    m_eState = bPage ? StatePageLoad : StateFrameLoad;
    m_spActiveFrame = pFrame;
}

void CTVXEventManager::BeginRefreshOfLoadingFrame()
{
    std::wstring strPath;
    ComPtr<IDispatch> spFound;
    if (!FindLoadingFrame(nullptr, TopLevelPath, m_spWebBrowser.Get(), strPath, spFound))
        return;
    const std::wstring strUrl = GetFrameUrl(spFound.Get());
    const bool bPage = strPath == TopLevelPath;
    if (bPage)
        FirePageRefreshBegin(spFound.Get(), strUrl);
    else
        FireFrameRefreshBegin(spFound.Get(), strUrl, strPath);
    m_eState = bPage ? StatePageRefresh : StateFrameRefresh;
    m_spActiveFrame = spFound;
}

void CTVXEventManager::BeginPendingLoad()
{
    std::wstring strPath;
    ComPtr<IDispatch> spFound;
    if (!FindLoadingFrame(nullptr, TopLevelPath, m_spWebBrowser.Get(), strPath, spFound))
        return;
    const std::wstring strUrl = m_strPendingUrl; // a nested notification clears the field
    BeginLoad(spFound.Get(), strUrl, strPath);
}

void CTVXEventManager::EndLoad(const CNavigationArguments& arguments)
{
    if (m_eState == StateFrameLoad)
        FireFrameLoadComplete(arguments.pFrame, arguments.strUrl);
    else if (m_eState == StatePageLoad)
        FirePageLoadComplete(arguments.pFrame, arguments.strUrl);
    BecomeIdle(); // a refresh that ends this way has no notification: meant so
}

void CTVXEventManager::EndForFileDownload()
{
    const ComPtr<IDispatch> spFrame = m_spActiveFrame; // stays while a nested event releases the field
    switch (m_eState)
    {
    case StatePageLoad:
        return FirePageLoadComplete(spFrame.Get(), GetFrameUrl(spFrame.Get()));
    case StateFrameLoad:
        return FireFrameLoadComplete(spFrame.Get(), GetFrameUrl(spFrame.Get()));
    case StatePageRefresh:
        return FirePageRefreshComplete();
    case StateFrameRefresh:
        return FireFrameRefreshComplete();
    case StateIdle:
        return;
    }
}

void CTVXEventManager::BecomeIdle()
{
    m_eState = StateIdle;
    m_spActiveFrame.Reset();
}

void CTVXEventManager::FirePageLoadBegin(IDispatch* pFrame, const std::wstring& strUrl)
{
    m_pEvents->OnPageLoadBegin(pFrame, strUrl.c_str());
    m_strPendingUrl.clear();
}

void CTVXEventManager::FirePageLoadComplete(IDispatch* pFrame, const std::wstring& strUrl)
{
    m_pEvents->OnPageLoadComplete(pFrame, strUrl.c_str());
    m_strPendingUrl.clear();
}

void CTVXEventManager::FireFrameLoadBegin(IDispatch* pFrame, const std::wstring& strUrl, const std::wstring& strPath)
{
    m_pEvents->OnFrameLoadBegin(pFrame, strUrl.c_str(), strPath.c_str());
    m_strPendingUrl.clear();
}

void CTVXEventManager::FireFrameLoadComplete(IDispatch* pFrame, const std::wstring& strUrl)
{
    m_pEvents->OnFrameLoadComplete(pFrame, strUrl.c_str());
    m_strPendingUrl.clear();
}

void CTVXEventManager::FirePageRefreshBegin(IDispatch* pFrame, const std::wstring& strUrl)
{
    m_pEvents->OnPageRefreshBegin(pFrame, strUrl.c_str());
    m_strPendingUrl.clear();
}

void CTVXEventManager::FirePageRefreshComplete()
{
    m_pEvents->OnPageRefreshComplete();
    m_strPendingUrl.clear();
}

void CTVXEventManager::FireFrameRefreshBegin(IDispatch* pFrame, const std::wstring& strUrl, const std::wstring& strPath)
{
    m_pEvents->OnFrameRefreshBegin(pFrame, strUrl.c_str(), strPath.c_str());
    m_strPendingUrl.clear();
}

void CTVXEventManager::FireFrameRefreshComplete()
{
    m_pEvents->OnFrameRefreshComplete();
    m_strPendingUrl.clear();
}
