#include "bench/engine/Page.h"

#include "bench/engine/Engine.h"
#include "bench/engine/PageScript.h"
#include "bench/engine/PageView.h"
#include "bench/protocol/Base64.h"

#include <algorithm>

CPage::CPage(IPageEvents& events, IPageView& view) : m_events(events), m_view(view), m_tracker(m_frames, events) {}

CPage::~CPage()
{
    Close();
}

bool CPage::Open(CEngine& engine, std::wstring& error)
{
    m_pEngine = &engine;
    m_targetId = engine.OpenTarget(error);
    if (m_targetId.empty())
        return false;
    m_connection = std::make_unique<CConnection>(static_cast<IProtocolEvents&>(*this));
    m_bOpen = m_connection->Open(engine.GetPort(), L"/devtools/page/" + FromUtf8(m_targetId));
    if (m_bOpen && Prepare())
        return true;
    error = L"The engine doesn't answer.";
    Close();
    return false;
}

bool CPage::Prepare()
{
    const auto tree = Call("Page.getFrameTree");
    if (!tree)
        return false;
    const Json& top = GetObjectMember(GetObjectMember(*tree, "frameTree"), "frame");
    m_frames.Reset(GetNarrowText(top, "id"), GetText(top, "url"));

    const Json onlyPages = {{{"type", "page"}, {"exclude", false}}, {{"exclude", true}}};
    Post("Page.enable");
    Post("Runtime.enable");
    Post("Inspector.enable");
    Post("Emulation.setFocusEmulationEnabled", {{"enabled", true}});
    Post("Browser.setDownloadBehavior", {{"behavior", "deny"}});
    for (const char* const pszBinding : {NavigateBinding, TitleBinding})
        Post("Runtime.addBinding", {{"name", pszBinding}, {"executionContextName", WorldName}});
    Post("Page.addScriptToEvaluateOnNewDocument",
         {{"source", PageScript}, {"worldName", WorldName}, {"runImmediately", true}});
    // New windows stop before they fetch anything.
    Post("Target.setAutoAttach",
         {{"autoAttach", true}, {"waitForDebuggerOnStart", true}, {"flatten", true}, {"filter", onlyPages}});
    return Call("Fetch.enable", {{"patterns", {{{"resourceType", "Document"}, {"requestStage", "Request"}}}}})
        .has_value();
}

void CPage::Close()
{
    m_bOpen = false;
    if (!m_connection || m_targetId.empty())
        return;
    m_connection->Close();
    m_pEngine->CloseTarget(std::exchange(m_targetId, {}));
}

void CPage::End(const std::wstring& reason)
{
    if (!std::exchange(m_bOpen, false))
        return;
    m_connection->Abandon();
    m_view.OnPageGone(reason);
}

std::optional<Json> CPage::Call(const char* pszMethod, Json params)
{
    if (!m_bOpen)
        return std::nullopt;
    auto result = m_connection->Call(pszMethod, std::move(params));
    // While another document is awaited, it may be the server that is slow.
    if (m_connection->HasTimedOut() && !m_bNextAwaited)
        End(L"The page doesn't answer.");
    return result;
}

void CPage::Post(const char* pszMethod, Json params, CConnection::Reply reply)
{
    if (m_bOpen)
        m_connection->Post(pszMethod, std::move(params), std::move(reply));
}

std::string CPage::Capture()
{
    const auto result = Call("Page.captureScreenshot", {{"format", "png"}});
    return result ? FromBase64(GetNarrowText(*result, "data")) : std::string();
}

void CPage::SetSize(int cx, int cy)
{
    m_size = {std::max(cx, 1), std::max(cy, 1)};
    Post("Emulation.setDeviceMetricsOverride",
         {{"width", m_size.cx}, {"height", m_size.cy}, {"deviceScaleFactor", 1}, {"mobile", false}});
    if (m_bPictures)
        StartPictures();
}

void CPage::ShowPictures(bool bShow)
{
    m_bPictures = bShow;
    if (bShow)
        StartPictures();
    else
        Post("Page.stopScreencast");
}

void CPage::StartPictures()
{
    constexpr int JpegQuality = 85;
    Post("Page.stopScreencast");
    Post("Page.startScreencast",
         {{"format", "jpeg"}, {"quality", JpegQuality}, {"maxWidth", m_size.cx}, {"maxHeight", m_size.cy}});
}
