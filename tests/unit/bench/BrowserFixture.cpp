#include "tests/unit/bench/BrowserFixture.h"

#include "framework/ComQuery.h"
#include "framework/GuidText.h"
#include "tests/unit/bench/TestPages.h"

#include <comutil.h>
#include <exdispid.h>

#include <algorithm>
#include <utility>

using Microsoft::WRL::ComPtr;

namespace
{
constexpr wchar_t EngineProgram[] = L"chromium";
constexpr DWORD SliceMs = 10;

void DispatchMessages()
{
    MsgWaitForMultipleObjects(0, nullptr, FALSE, SliceMs, QS_ALLINPUT);
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&msg);
}
} // namespace

std::unique_ptr<CEngine> CBrowserTest::s_engine;
std::unique_ptr<CTestPages> CBrowserTest::s_pages;

HRESULT CTestBrowserWindow::ShowBar(REFCLSID clsid, bool bShow, int nSize)
{
    m_bars.push_back(GetGuidText(clsid) + (bShow ? L" shown " : L" hidden ") + std::to_wstring(nSize));
    return S_OK;
}

bool CTestBrowserWindow::ShowScriptError(const std::wstring& message, const std::wstring&, long)
{
    m_scriptErrors.push_back(message);
    if (m_onScriptError)
        m_onScriptError();
    return m_bScriptsGoOn;
}

void CBrowserTest::SetUpTestSuite()
{
    CoInitialize(nullptr);
    s_pages = std::make_unique<CTestPages>();
    RestartEngine();
}

void CBrowserTest::RestartEngine()
{
    s_engine = std::make_unique<CEngine>();
    std::wstring error;
    ASSERT_TRUE(s_engine->Start(EngineProgram, error)) << ToUtf8(error);
}

void CBrowserTest::TearDownTestSuite()
{
    s_engine.reset();
    s_pages.reset();
    CoUninitialize();
}

void CBrowserTest::SetUp()
{
    m_spBrowser = MakeObject<CWebBrowser>(m_window, m_window);
    std::wstring error;
    ASSERT_TRUE(m_spBrowser->Open(*s_engine, error)) << ToUtf8(error);
    GetPage().SetSize(800, 600);
    m_spRecorder = MakeObject<CEventRecorder>();
    m_spRecorder->m_nameUrl = [](const std::wstring& url) {
        const std::wstring host = UrlOf({});
        return ToUtf8(url.starts_with(host) ? url.substr(host.size()) : url);
    };
    m_spRecorder->m_nameFrame = [this](IDispatch* pFrame) { return NameFrame(pFrame); };
    ComPtr<IConnectionPoint> spPoint;
    ASSERT_EQ(m_spBrowser->FindConnectionPoint(DIID_DWebBrowserEvents2, &spPoint), S_OK);
    ASSERT_EQ(spPoint->Advise(m_spRecorder.Get(), &m_dwCookie), S_OK);
    ASSERT_TRUE(PumpUntil([this] { return Run(L"0") == 0; })) << "the page doesn't answer";
    Settle();
    TakeEvents();
    s_pages->TakeRequests();
}

void CBrowserTest::TearDown()
{
    // What it refers to has gone with the test.
    m_spRecorder->SetAction(nullptr);
    m_spBrowser->Close();
    m_spRecorder->m_nameFrame = nullptr;
    m_spBrowser.Reset();
}

std::string CBrowserTest::NameFrame(IDispatch* pFrame)
{
    if (IsSameObject(pFrame, static_cast<IWebBrowser2*>(m_spBrowser.Get())))
        return "top";
    for (const auto& [id, frame] : GetPage().GetFrames().GetAll())
        if (IsSameObject(pFrame, m_spBrowser->GetFrameBrowser(id).Get()))
            return frame.strName.empty() ? "frame" : ToUtf8(frame.strName);
    return "unknown";
}

void CBrowserTest::Serve(const std::string& path, const std::string& html, const std::string& headers)
{
    s_pages->Serve(path, html, headers);
}

void CBrowserTest::Redirect(const std::string& from, const std::string& to)
{
    s_pages->Redirect(from, to);
}

std::vector<std::string> CBrowserTest::TakeRequests()
{
    return s_pages->TakeRequests();
}

std::wstring CBrowserTest::UrlOf(const std::wstring& path)
{
    return L"http://127.0.0.1:" + std::to_wstring(s_pages->GetPort()) + path;
}

std::wstring CBrowserTest::ForeignUrlOf(const std::wstring& path)
{
    return L"http://localhost:" + std::to_wstring(s_pages->GetPort()) + path;
}

bool CBrowserTest::PumpUntil(const std::function<bool()>& holds)
{
    const ULONGLONG ullEnd = GetTickCount64() + TimeoutMs;
    while (!holds())
    {
        if (GetTickCount64() > ullEnd)
            return false;
        DispatchMessages();
    }
    return true;
}

bool CBrowserTest::PumpUntilTold(const std::string& line)
{
    const auto& lines = m_spRecorder->m_lines;
    const bool bTold = PumpUntil([&] { return std::find(lines.begin(), lines.end(), line) != lines.end(); });
    Settle();
    return bTold;
}

void CBrowserTest::Settle()
{
    // The page's scripts and its frames are of different processes of the engine.
    Run(L"0");
    GetPage().Call("Page.getNavigationHistory");
    DispatchMessages();
}

void CBrowserTest::LoadBy(const std::function<void()>& begin)
{
    const int nEndedBefore = m_window.m_nLoadsEnded;
    begin();
    ASSERT_TRUE(PumpUntil([&] { return m_window.m_nLoadsEnded > nEndedBefore && !m_window.m_bLoading; }))
        << "no load began or it didn't end";
    Settle();
}

void CBrowserTest::Load(const std::wstring& path)
{
    LoadBy([&] { ASSERT_EQ(Navigate(UrlOf(path)), S_OK); });
}

HRESULT CBrowserTest::Navigate(const std::wstring& url)
{
    return m_spBrowser->Navigate(_bstr_t(url.c_str()), nullptr, nullptr, nullptr, nullptr);
}

Json CBrowserTest::Run(const std::wstring& script)
{
    return GetPage().Evaluate(GetPage().GetTopFrameId(), script);
}

void CBrowserTest::Click(POINT point)
{
    GetPage().MouseEvent(EMouseEvent::Moved, point, EMouseButton::None, 0, InputNone);
    GetPage().MouseEvent(EMouseEvent::Pressed, point, EMouseButton::Left, 1, InputNone);
    GetPage().MouseEvent(EMouseEvent::Released, point, EMouseButton::Left, 1, InputNone);
    // The page answers one input after the other.
    GetPage().Call("Input.dispatchMouseEvent", {{"type", "mouseMoved"}, {"x", point.x}, {"y", point.y}});
}

std::vector<std::string> CBrowserTest::TakeEvents()
{
    return std::exchange(m_spRecorder->m_lines, {});
}
