#include "tests/unit/bench/browser_fixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

class LoadEvents : public BrowserTest
{
};

TEST_F(LoadEvents, OfAPlainPageComeInTheBrowsersOrder)
{
    Serve("/plain.html", "<title>Plain</title><p>Text");
    Load(L"/plain.html");
    EXPECT_THAT(TakeEvents(),
                ElementsAre("BeforeNavigate2 top /plain.html", "DownloadBegin", "NavigateComplete2 top /plain.html",
                            "DownloadComplete", "DocumentComplete top /plain.html"));
}

TEST_F(LoadEvents, Explore)
{
    const auto print = [this](const char* what) {
        PumpUntilQuiet();
        printf("== %s [%ls] title [%ls] status [%ls]\n", what, m_window.m_strAddress.c_str(),
               m_window.m_strTitle.c_str(), m_window.m_strStatus.c_str());
        for (auto& e : TakeEvents())
            printf("   %s\n", e.c_str());
        for (auto& e : TakeRequests())
            printf("   REQ %s\n", e.substr(0, e.find('\n')).c_str());
        for (auto& e : m_window.m_windows)
            printf("   WIN %ls\n", e.c_str());
        for (auto& e : m_window.m_dialogs)
            printf("   DLG %ls\n", e.c_str());
        for (auto& e : m_window.m_gone)
            printf("   GONE %ls\n", e.c_str());
        m_window.m_windows.clear();
        m_window.m_dialogs.clear();
        fflush(stdout);
    };
    Serve("/a.html",
          "<title>A</title><iframe name=left src=/b.html></iframe><iframe name=blank></iframe><iframe name=ab "
          "src=about:blank></iframe><iframe name=doc srcdoc='<p>x'></iframe><object name=obj data=/b.html "
          "type=text/html></object><iframe name=data src='data:text/html,hi'></iframe><a id=x href='#anchor'>a</a>");
    Serve("/b.html", "<title>B</title><p>Text");
    Serve("/fs.html",
          "<title>F</title><frameset cols='50%,*'><frame name=f1 src=/b.html><frame name=f2 src=/a.html></frameset>");
    Serve("/file", "xxx",
          "Content-Type: application/octet-stream\r\nContent-Disposition: attachment; filename=x.bin\r\n");
    Load(L"/a.html");
    print("a");
    Run(L"location.hash='#y'");
    print("hash");
    Run(L"history.pushState(1,'','/zzz')");
    print("push");
    Run(L"frames[0].location='/fs.html'");
    print("frame to frameset");
    m_spBrowser->Refresh();
    print("refresh");
    Run(L"frames[0].location.reload()");
    print("frame refresh");
    Load(L"/fs.html");
    print("fs");
    m_spBrowser->GoBack();
    print("back");
    m_spBrowser->GoBack();
    print("back beyond");
    Navigate(UrlOf(L"/file"));
    print("file");
    Navigate(L"http://127.0.0.1:1/");
    print("unreachable");
    Navigate(L"trelvix:foo");
    print("unknown scheme");
    Navigate(L"javascript:document.title='js'");
    print("js");
    Load(L"/a.html");
    print("a");
    Run(L"location='trelvix:x'");
    print("script scheme");
    Run(L"location='javascript:void(document.title=1)'");
    print("script js");
    Run(L"window.open('/b.html')");
    print("popup");
    Run(L"setTimeout(()=>alert('hey'))");
    print("alert");
    Run(L"location='data:text/html,hi'");
    print("data top by script");
    Navigate(L"data:text/html,<title>D</title>hi");
    print("data top");
    Navigate(L"about:blank");
    print("blank");
    Navigate(L"file:///etc/hostname");
    print("file:");
    Navigate(UrlOf(L"/404.html"));
    print("404");
    Navigate(L"chrome://crash");
    print("crash");
}
