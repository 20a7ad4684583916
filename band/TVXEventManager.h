#pragma once

#include <windows.h>
#include <exdisp.h>
#include <wrl/client.h>

#include <string>

class ITVXEvents;
struct CNavigationArguments;

/// Turns the browser's event stream, in which a page with frames fires many navigations and downloads in an order that
/// differs between a load, a refresh and a cancelled download, into the paired notifications of ITVXEvents.
///
/// Runs on the browser's thread. A notification may let the browser re-enter: state and active frame change only after
/// it has returned.
class CTVXEventManager
{
public:
    /// What the current begin was told for.
    enum EState : int
    {
        StateIdle,
        StatePageLoad,
        StateFrameLoad,
        StatePageRefresh,
        StateFrameRefresh,
    };

    /// The sink is not owned and must outlive the manager.
    explicit CTVXEventManager(ITVXEvents* pEvents) : m_pEvents(pEvents) {}
    CTVXEventManager(const CTVXEventManager&) = delete;
    CTVXEventManager& operator=(const CTVXEventManager&) = delete;
    virtual ~CTVXEventManager() = default;

    /// Takes an event of DWebBrowserEvents2 with the arguments of IDispatch::Invoke. Arguments of a wrong number or
    /// type are tolerated; nothing happens without arguments, browser or sink.
    virtual void Invoke(DISPID dispid, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS* pDispParams,
                        VARIANT* pVarResult, EXCEPINFO* pExcepInfo, UINT* puArgErr);

    /// The tab's browser, borrowed; null before SetWebBrowser.
    IWebBrowser2* GetWebBrowser() const { return m_spWebBrowser.Get(); }
    /// Keeps a reference of its own.
    void SetWebBrowser(IWebBrowser2* pWebBrowser) { m_spWebBrowser = pWebBrowser; }

    EState GetState() const { return m_eState; }

    /// Searches `pCurrent`, whose path is `strPath`, and the frames below it, depth first, for the target or else for
    /// a frame that is still loading, whichever comes first. Leaves the out arguments alone when it finds none.
    static bool FindLoadingFrame(IDispatch* pTarget, const std::wstring& strPath, IDispatch* pCurrent,
                                 std::wstring& strFoundPath, Microsoft::WRL::ComPtr<IDispatch>& spFoundFrame);

    /// Whether `pCurrent` is the target itself or still loading.
    static bool IsTargetFrame(IDispatch* pTarget, IDispatch* pCurrent);

protected:
    Microsoft::WRL::ComPtr<IWebBrowser2> m_spWebBrowser;
    int m_nNavigations = 0; ///< under way, by BeforeNavigate2 and DocumentComplete
    int m_nDownloads = 0;   ///< under way, by DownloadBegin and DownloadComplete
    EState m_eState = StateIdle;
    Microsoft::WRL::ComPtr<IDispatch> m_spActiveFrame; ///< the frame that the current begin was told for
    std::wstring m_strPendingUrl;                      ///< of a navigation whose frame was not yet to be found
    ITVXEvents* m_pEvents;                             ///< not owned
    const IDispatch* m_pLastFrame = nullptr;           ///< of the last counted BeforeNavigate2; an address to compare

private:
    void OnBeforeNavigate(const DISPPARAMS& params);
    void OnDownloadBegin();
    void OnDownloadComplete();
    void OnDocumentComplete(const DISPPARAMS& params);
    void OnFileDownload();

    void BeginLoad(IDispatch* pFrame, const std::wstring& strUrl, const std::wstring& strPath);
    void BeginRefreshOfLoadingFrame();
    void BeginPendingLoad();
    void EndLoad(const CNavigationArguments& arguments);
    void EndForFileDownload();
    void BecomeIdle();

    void FirePageLoadBegin(IDispatch* pFrame, const std::wstring& strUrl);
    void FirePageLoadComplete(IDispatch* pFrame, const std::wstring& strUrl);
    void FireFrameLoadBegin(IDispatch* pFrame, const std::wstring& strUrl, const std::wstring& strPath);
    void FireFrameLoadComplete(IDispatch* pFrame, const std::wstring& strUrl);
    void FirePageRefreshBegin(IDispatch* pFrame, const std::wstring& strUrl);
    void FirePageRefreshComplete();
    void FireFrameRefreshBegin(IDispatch* pFrame, const std::wstring& strUrl, const std::wstring& strPath);
    void FireFrameRefreshComplete();
};
