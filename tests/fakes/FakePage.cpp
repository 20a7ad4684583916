#include "tests/fakes/FakePage.h"

#include "framework/ComQuery.h"
#include "tests/fakes/BrowserEvent.h"

using Microsoft::WRL::ComPtr;

namespace
{
ComPtr<CFakeWebBrowser2> MakeBrowser(const std::wstring& strUrl)
{
    auto spBrowser = MakeFake<CFakeWebBrowser2>();
    spBrowser->m_strUrl = strUrl;
    spBrowser->m_spDocument = static_cast<IHTMLDocument2*>(MakeFake<CFakeDocument>().Get());
    return spBrowser;
}

/// The frames of a document, in its order.
std::vector<CFakeWebBrowser2*> GetFrames(CFakeWebBrowser2& frame)
{
    std::vector<CFakeWebBrowser2*> frames;
    for (const ComPtr<IUnknown>& spObject : CFakePage::GetDocument(frame).m_objects)
    {
        if (auto* pFrame = dynamic_cast<CFakeWebBrowser2*>(spObject.Get()))
            frames.push_back(pFrame);
    }
    return frames;
}

void SendEvent(const CFakePage::Send& send, CBrowserEvent event)
{
    send(event);
}
} // namespace

CFakePage::CFakePage(const std::wstring& strUrl) : m_spTop(MakeBrowser(strUrl)) {}

CFakeDocument& CFakePage::GetDocument(CFakeWebBrowser2& frame)
{
    return dynamic_cast<CFakeDocument&>(*frame.m_spDocument.Get());
}

CFakeWebBrowser2& CFakePage::AddFrame(CFakeWebBrowser2& parent, const std::wstring& strUrl)
{
    const ComPtr<CFakeWebBrowser2> spFrame = MakeBrowser(strUrl);
    GetDocument(parent).m_objects.push_back(spFrame->AsFrame());
    return *spFrame.Get();
}

void CFakePage::AddObject(CFakeWebBrowser2& parent)
{
    const auto spObject = MakeFake<CFakeConnectionPoint>();
    GetDocument(parent).m_objects.push_back(spObject.Get());
}

void CFakePage::LoadFrame(CFakeWebBrowser2& frame, const Send& send, bool bDownload)
{
    SendEvent(send, CBrowserEvent::BeforeNavigate2(frame.AsFrame(), frame.m_strUrl));
    frame.m_eReadyState = READYSTATE_LOADING;
    if (bDownload)
        SendEvent(send, CBrowserEvent::DownloadBegin());
    SendEvent(send, CBrowserEvent::NavigateComplete2(frame.AsFrame(), frame.m_strUrl));
    for (CFakeWebBrowser2* pChild : GetFrames(frame))
        LoadFrame(*pChild, send, bDownload);
    if (bDownload)
        SendEvent(send, CBrowserEvent::DownloadComplete());
    frame.m_eReadyState = READYSTATE_COMPLETE;
    SendEvent(send, CBrowserEvent::DocumentComplete(frame.AsFrame(), frame.m_strUrl));
}

void CFakePage::Refresh(CFakeWebBrowser2& frame, const Send& send)
{
    frame.m_eReadyState = READYSTATE_LOADING;
    SendEvent(send, CBrowserEvent::DownloadBegin());
    frame.m_eReadyState = READYSTATE_COMPLETE;
    SendEvent(send, CBrowserEvent::DownloadComplete());
}
