#pragma once

#include "framework/ComObject.h"
#include "framework/DispatchImpl.h"
#include "resources/Trelvix.h"

#include <windows.h>
#include <exdisp.h>
#include <ocidl.h>
#include <shlobj.h>
#include <wrl/client.h>

#include <memory>

class CTrelvixWindow;

/// The band: the only object that the browser itself talks to, one for each window or tab that shows the toolbar. It
/// finds the browser through its site, creates the toolbar window, connects it to the browser's events and takes
/// everything down again. Apartment threaded; aggregatable.
class CATLTrelvix : public CComObjectRoot,
                    public IDeskBand,
                    public IInputObject,
                    public IObjectWithSite,
                    public IPersistStream,
                    public IDispatchImpl<IATLTrelvix>
{
    BEGIN_COM_MAP(CATLTrelvix)
        COM_INTERFACE_ENTRY(IATLTrelvix)
        COM_INTERFACE_ENTRY(IOleWindow)
        COM_INTERFACE_ENTRY(IDockingWindow)
        COM_INTERFACE_ENTRY(IObjectWithSite)
        COM_INTERFACE_ENTRY(IDeskBand)
        COM_INTERFACE_ENTRY(IPersist)
        COM_INTERFACE_ENTRY(IInputObject)
        COM_INTERFACE_ENTRY(IPersistStream)
        COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()

public:
    CATLTrelvix();

    STDMETHODIMP GetWindow(HWND* phwnd) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL fEnterMode) override;

    STDMETHODIMP ShowDW(BOOL fShow) override;
    /// Destroys the toolbar window and the items. The object keeps its site and its events.
    STDMETHODIMP CloseDW(DWORD dwReserved) override;
    STDMETHODIMP ResizeBorderDW(LPCRECT prcBorder, IUnknown* punkToolbarSite, BOOL fReserved) override;

    /// Answers with fixed sizes. The first band ever shown asks for a row of its own.
    STDMETHODIMP GetBandInfo(DWORD dwBandID, DWORD dwViewMode, DESKBANDINFO* pdbi) override;

    STDMETHODIMP UIActivateIO(BOOL fActivate, MSG* pMsg) override;
    STDMETHODIMP HasFocusIO() override;
    STDMETHODIMP TranslateAcceleratorIO(MSG* pMsg) override;

    /// Connects the band to a browser through its site, which must answer IOleWindow, IInputObjectSite and
    /// IServiceProvider; a connection that stood before goes first. Null disconnects. E_FAIL leaves the band half
    /// connected: the next call, with null or another site, cleans up.
    STDMETHODIMP SetSite(IUnknown* pUnkSite) override;
    STDMETHODIMP GetSite(REFIID riid, void** ppvSite) override;

    STDMETHODIMP GetClassID(CLSID* pClassID) override;
    STDMETHODIMP IsDirty() override;
    STDMETHODIMP Load(IStream* pStm) override;
    STDMETHODIMP Save(IStream* pStm, BOOL fClearDirty) override;
    STDMETHODIMP GetSizeMax(ULARGE_INTEGER* pcbSize) override;

    /// Every event of the browser enters here and goes on to the toolbar window. Always S_OK, but for missing
    /// arguments.
    STDMETHODIMP Invoke(DISPID dispid, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS* pDispParams,
                        VARIANT* pVarResult, EXCEPINFO* pExcepInfo, UINT* puArgErr) override;

    /// Tells the site that the band gained or lost the focus.
    void NotifyFocusChange(bool bFocus);

    /// The browser, borrowed; null before the first connection.
    IWebBrowser2* GetWebBrowser() const { return m_pWebBrowser.Get(); }

protected:
    ~CATLTrelvix();

private:
    HRESULT Connect(IUnknown* pUnkSite);
    bool FindParentWindow(IUnknown* pUnkSite);
    bool CreateToolbarWindow();
    void ReleaseToolbarWindow();
    Microsoft::WRL::ComPtr<IConnectionPoint> FindEventPoint() const;
    void AdviseBrowserEvents();
    void UnadviseBrowserEvents();
    void PublishToolbarWindow();
    DWORD GetModeFlags();

    DWORD m_dwBandID = 0;
    DWORD m_dwViewMode = 0;
    BOOL m_bShow = FALSE;
    BOOL m_bEnterMode = FALSE;
    HWND m_hWndParent = nullptr;
    HWND m_hWnd = nullptr;
    Microsoft::WRL::ComPtr<IInputObjectSite> m_pSite; ///< set while the band is connected
    std::shared_ptr<CTrelvixWindow> m_pToolbarWindow; ///< shared with the calls that are under way in it
    Microsoft::WRL::ComPtr<IWebBrowser2> m_pWebBrowser;
    DWORD m_dwEventCookie = 0;
    BOOL m_bBreakRow = FALSE; ///< stays set for the life of the object
};
