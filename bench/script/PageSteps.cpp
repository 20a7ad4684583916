#include "bench/com/WebBrowser.h"
#include "bench/engine/Page.h"
#include "bench/script/EventJournal.h"
#include "bench/script/ScriptRunner.h"
#include "bench/window/FrameWindow.h"
#include "bench/window/TabWindow.h"

namespace
{
/// A string of the page's script language.
std::wstring Quote(const std::wstring& text)
{
    return FromUtf8(Json(ToUtf8(text)).dump());
}

/// The text in the quotes of a message.
std::wstring Named(const std::wstring& text)
{
    return L"\"" + text + L"\"";
}
} // namespace

void CScriptRunner::Navigate(const Arguments& arguments)
{
    Mark();
    const std::wstring url = m_host.CompleteAddress(arguments[0]);
    OnTab([&](CTabWindow& window) { window.Navigate(url); });
}

void CScriptRunner::EnterAddress(const Arguments& arguments)
{
    Mark();
    PressKey({L"Alt+D"});
    ExpectFocus({L"address"});
    Type({m_host.CompleteAddress(arguments[0])});
    PressKey({L"Enter"});
}

void CScriptRunner::ClickLink(const Arguments& arguments)
{
    Mark();
    ClickInPage(L"[...document.links].find(each => each.textContent.trim() === " + Quote(arguments[0]) + L")",
                L"no link " + Named(arguments[0]));
}

void CScriptRunner::ClickElement(const Arguments& arguments)
{
    Mark();
    ClickInPage(L"document.querySelector(" + Quote(arguments[0]) + L")", L"no element " + arguments[0]);
}

void CScriptRunner::Reload(const Arguments&)
{
    Mark();
    OnTab([](CTabWindow& window) { window.Reload(); });
}

void CScriptRunner::GoBack(const Arguments&)
{
    Mark();
    OnTab([](CTabWindow& window) { window.GoBack(); });
}

void CScriptRunner::GoForward(const Arguments&)
{
    Mark();
    OnTab([](CTabWindow& window) { window.GoForward(); });
}

void CScriptRunner::WaitForLoad(const Arguments&)
{
    const std::wstring line = std::to_wstring(GetTab()->GetNumber()) + L" DownloadComplete";
    const auto isLoaded = [&] {
        return !GetState().bLoading && m_host.GetJournal().Find(line, m_nMark) < m_host.GetJournal().GetCount();
    };
    WaitUntil(isLoaded, L"the page doesn't finish loading");
    Settle();
}

void CScriptRunner::WaitForEvent(const Arguments& arguments)
{
    CEventJournal& journal = m_host.GetJournal();
    WaitUntil([&] { return journal.Find(arguments[0], m_nMark) < journal.GetCount(); },
              L"there is no event " + Named(arguments[0]));
    m_nMark = journal.Find(arguments[0], m_nMark) + 1;
}

void CScriptRunner::ExpectAddress(const Arguments& arguments)
{
    const std::wstring url = m_host.CompleteAddress(arguments[0]);
    const auto isThere = [&] {
        std::wstring actual;
        OnFrame([&](CFrameWindow& frame) { actual = frame.GetAddress(); });
        return actual == url;
    };
    WaitUntil(isThere, L"the address is not " + url);
}

void CScriptRunner::ExpectTitle(const Arguments& arguments)
{
    WaitUntil([&] { return GetState().strTitle == arguments[0]; }, L"the title is not " + Named(arguments[0]));
}

void CScriptRunner::ExpectStatus(const Arguments& arguments)
{
    const auto isThere = [&] {
        std::wstring actual;
        OnFrame([&](CFrameWindow& frame) { actual = frame.GetStatusText(); });
        return actual.find(arguments[0]) != std::wstring::npos;
    };
    WaitUntil(isThere, L"the status bar doesn't say " + Named(arguments[0]));
}

void CScriptRunner::ExpectBack(const Arguments& arguments)
{
    WaitUntil([&] { return GetState().bCanGoBack == (arguments[0] == L"yes"); }, L"the way back is not as expected");
}

void CScriptRunner::ExpectInPage(const Arguments& arguments)
{
    WaitUntil([&] { return AskPage(arguments[0]) == L"true"; }, L"the page doesn't answer true to " + arguments[0]);
}

std::wstring CScriptRunner::AskPage(const std::wstring& expression)
{
    Json answer;
    OnTab([&](CTabWindow& window) {
        CPage& page = window.GetBrowser().GetPage();
        answer = page.Evaluate(page.GetTopFrameId(), expression);
    });
    return FromUtf8(answer.dump());
}

void CScriptRunner::ClickInPage(const std::wstring& elementExpression, const std::wstring& what)
{
    POINT point = {};
    const std::wstring script = L"(element => { if (!element) return null; element.scrollIntoView({block: 'nearest'}); "
                                L"const box = element.getClientRects()[0]; "
                                L"return box ? [box.left + box.width / 2, box.top + box.height / 2] : null; })(" +
                                elementExpression + L")";
    const auto isThere = [&] {
        const Json place = Json::parse(ToUtf8(AskPage(script)));
        if (!place.is_array())
            return false;
        point = {static_cast<LONG>(place[0].get<double>()), static_cast<LONG>(place[1].get<double>())};
        return true;
    };
    WaitUntil(isThere, what);
    OnTab([&](CTabWindow& window) { ClientToScreen(window.GetViewWindow(), &point); });
    ClickScreen(point);
}
