#pragma once

#include "tests/fakes/FakeDocument.h"
#include "tests/fakes/FakeWebBrowser2.h"

#include <windows.h>
#include <wrl/client.h>

#include <functional>
#include <string>

class CBrowserEvent;

/// A browser that shows a page with frames, to any depth. The page owns its browser; each document owns its frames.
class CFakePage
{
public:
    explicit CFakePage(const std::wstring& strUrl = L"http://page.test/");

    CFakeWebBrowser2& GetTop() { return *m_spTop.Get(); }
    /// The document on show in the page or a frame.
    static CFakeDocument& GetDocument(CFakeWebBrowser2& frame);

    /// Appends a frame to the document of a frame or of the top-level page.
    CFakeWebBrowser2& AddFrame(CFakeWebBrowser2& parent, const std::wstring& strUrl);
    /// Appends an embedded object that is no browser.
    static void AddObject(CFakeWebBrowser2& parent);

    /// Takes the events of a load, and what the browser does between them.
    using Send = std::function<void(CBrowserEvent&)>;

    /// Loads the page with all its frames in the browser's order of events; ready states follow.
    void Load(const Send& send) { LoadFrame(GetTop(), send, true); }
    /// Navigates one frame, with the frames below it.
    void LoadFrame(CFakeWebBrowser2& frame, const Send& send) { LoadFrame(frame, send, true); }
    /// Reloads the page or a frame: a download without a navigation.
    static void Refresh(CFakeWebBrowser2& frame, const Send& send);

private:
    void LoadFrame(CFakeWebBrowser2& frame, const Send& send, bool bDownload);

    Microsoft::WRL::ComPtr<CFakeWebBrowser2> m_spTop;
};
