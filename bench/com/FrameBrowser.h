#pragma once

#include "bench/com/BrowserBase.h"
#include "bench/com/CountedObject.h"

#include <windows.h>
#include <exdisp.h>
#include <servprov.h>

#include <string>

class CWebBrowser;

/// The browser object of one frame below the top. There is one for each frame as long as the frame lives, so that its
/// identity is the frame's.
class CFrameBrowser : public CCountedObject<CFrameBrowser, CBrowserBase, IServiceProvider>
{
    BEGIN_COM_MAP(CFrameBrowser)
        COM_INTERFACE_ENTRY(IWebBrowser2)
        COM_INTERFACE_ENTRY(IWebBrowserApp)
        COM_INTERFACE_ENTRY(IWebBrowser)
        COM_INTERFACE_ENTRY2(IDispatch, IWebBrowser2)
        COM_INTERFACE_ENTRY(IServiceProvider)
    END_COM_MAP()

public:
    CFrameBrowser(CWebBrowser& browser, std::string frameId) : m_pBrowser(&browser), m_frameId(std::move(frameId)) {}

    /// The frame has gone.
    void Detach() { m_pBrowser = nullptr; }

    /// The document in which the frame stands.
    STDMETHODIMP get_Parent(IDispatch** ppParent) override;
    STDMETHODIMP QueryService(REFGUID service, REFIID iid, void** ppv) override;

private:
    CWebBrowser* GetBrowser() override { return m_pBrowser; }
    const std::string& GetFrameId() const override { return m_frameId; }

    CWebBrowser* m_pBrowser; ///< owns this object while the frame lives
    std::string m_frameId;
};
