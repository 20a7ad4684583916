#include "bench/script/ScriptRunner.h"

#include "bench/script/EventJournal.h"
#include "bench/window/FrameWindow.h"
#include "bench/window/TabWindow.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <span>
#include <sstream>
#include <string_view>

namespace
{
constexpr DWORD StepTimeoutMs = 60'000;
constexpr DWORD PollMs = 20;

constexpr std::wstring_view NumberNames[] = {L"INDEX", L"NUMBER", L"COUNT", L"BUTTONS",
                                             L"X",     L"Y",      L"WIDTH", L"HEIGHT"};
constexpr size_t MaxDigits = 5;

std::vector<std::wstring> Split(const std::wstring& text, wchar_t separator)
{
    std::vector<std::wstring> parts;
    std::wistringstream stream(text);
    for (std::wstring part; std::getline(stream, part, separator);)
        parts.push_back(part);
    return parts;
}

bool IsNumber(const std::wstring& text)
{
    const auto isDigit = [](wchar_t c) { return c >= L'0' && c <= L'9'; };
    return !text.empty() && text.size() <= MaxDigits && std::ranges::all_of(text, isDigit);
}

/// Whether an argument is what its name in the table says: a number, one of some words, or any text.
bool IsArgument(const std::wstring& name, const std::wstring& text)
{
    if (std::ranges::find(NumberNames, name) != std::end(NumberNames))
        return IsNumber(text);
    return name.find(L'|') == std::wstring::npos || std::ranges::count(Split(name, L'|'), text) != 0;
}
} // namespace

struct CScriptRunner::CStepRow
{
    const wchar_t* pszName;
    /// Their names; one in brackets may be left out, one with bars lists the words to choose from.
    const wchar_t* pszArguments;
    void (CScriptRunner::*pfnTake)(const Arguments&);

    bool Takes(const Arguments& arguments) const
    {
        const std::vector<std::wstring> names = Split(pszArguments, L' ');
        const auto nOptional = std::ranges::count_if(names, [](const auto& name) { return name.starts_with(L'['); });
        return arguments.size() + nOptional >= names.size() && arguments.size() <= names.size() &&
               std::ranges::equal(arguments, std::span(names).first(arguments.size()),
                                  [](const auto& text, const auto& name) { return IsArgument(name, text); });
    }
};

const CScriptRunner::CStepRow CScriptRunner::stepTable[] = {
    {L"navigate", L"ADDRESS", &CScriptRunner::Navigate},
    {L"enter-address", L"ADDRESS", &CScriptRunner::EnterAddress},
    {L"click-link", L"TEXT", &CScriptRunner::ClickLink},
    {L"click", L"SELECTOR", &CScriptRunner::ClickElement},
    {L"reload", L"", &CScriptRunner::Reload},
    {L"back", L"", &CScriptRunner::GoBack},
    {L"forward", L"", &CScriptRunner::GoForward},
    {L"wait-for-load", L"", &CScriptRunner::WaitForLoad},
    {L"wait-for-event", L"TEXT", &CScriptRunner::WaitForEvent},
    {L"expect-address", L"ADDRESS", &CScriptRunner::ExpectAddress},
    {L"expect-title", L"TEXT", &CScriptRunner::ExpectTitle},
    {L"expect-status", L"TEXT", &CScriptRunner::ExpectStatus},
    {L"expect-in-page", L"EXPRESSION", &CScriptRunner::ExpectInPage},
    {L"expect-back", L"yes|no", &CScriptRunner::ExpectBack},
    {L"type", L"TEXT", &CScriptRunner::Type},
    {L"key", L"KEYS", &CScriptRunner::PressKey},
    {L"press", L"INDEX", &CScriptRunner::PressButton},
    {L"drop-down", L"INDEX", &CScriptRunner::DropDown},
    {L"open-chevron", L"", &CScriptRunner::OpenChevron},
    {L"expect-menu", L"", &CScriptRunner::ExpectMenu},
    {L"expect-box", L"INDEX TEXT", &CScriptRunner::ExpectBox},
    {L"expect-own-row", L"yes|no", &CScriptRunner::ExpectOwnRow},
    {L"expect-focus", L"address|toolbar|page", &CScriptRunner::ExpectFocus},
    {L"move-pointer", L"X Y", &CScriptRunner::MovePointer},
    {L"open-window", L"[ADDRESS]", &CScriptRunner::OpenWindow},
    {L"open-tab", L"[ADDRESS]", &CScriptRunner::OpenTab},
    {L"close-tab", L"", &CScriptRunner::CloseTab},
    {L"close-window", L"", &CScriptRunner::CloseWindow},
    {L"select-tab", L"NUMBER", &CScriptRunner::SelectTab},
    {L"select-window", L"NUMBER", &CScriptRunner::SelectWindow},
    {L"expect-tabs", L"COUNT", &CScriptRunner::ExpectTabs},
    {L"expect-windows", L"COUNT", &CScriptRunner::ExpectWindows},
    {L"expect-toolbar", L"BUTTONS", &CScriptRunner::ExpectToolbar},
    {L"resize", L"WIDTH HEIGHT", &CScriptRunner::Resize},
    {L"visual-style", L"on|off", &CScriptRunner::SetVisualStyle},
    {L"expect-dialog", L"TEXT", &CScriptRunner::ExpectDialog},
    {L"answer", L"BUTTON", &CScriptRunner::AnswerDialog},
    {L"picture", L"NAME [CAPTION]", &CScriptRunner::TakePicture},
};

CScriptRunner::CScriptRunner(IScriptHost& host, const std::wstring& outputFolder)
    : m_host(host), m_strOutput(outputFolder)
{
}

const CScriptRunner::CStepRow* CScriptRunner::FindRow(const CStep& step)
{
    const auto* pRow =
        std::ranges::find_if(stepTable, [&](const CStepRow& row) { return step.strName == row.pszName; });
    return pRow == std::end(stepTable) ? nullptr : pRow;
}

bool CScriptRunner::Check(const std::vector<CStep>& steps, std::wstring& error)
{
    for (const CStep& step : steps)
    {
        const CStepRow* const pRow = FindRow(step);
        if (pRow != nullptr && pRow->Takes(step.arguments))
            continue;
        error = L"line " + std::to_wstring(step.nLine) + L": " +
                (pRow ? L"the step is " + step.strName + L" " + pRow->pszArguments : L"unknown step " + step.strName);
        return false;
    }
    return true;
}

std::wstring CScriptRunner::GetStepList()
{
    std::wstring text;
    for (const CStepRow& row : stepTable)
        text += std::wstring(L"  ") + row.pszName + L" " + row.pszArguments + L"\n";
    return text;
}

bool CScriptRunner::Run(const std::vector<CStep>& steps, std::wstring& error)
{
    std::error_code ignored;
    if (!m_strOutput.empty())
        std::filesystem::create_directories(m_strOutput, ignored);
    for (const CStep& step : steps)
    {
        try
        {
            (this->*FindRow(step)->pfnTake)(step.arguments);
        }
        catch (const CStepError& failure)
        {
            error = L"line " + std::to_wstring(step.nLine) + L": " + step.strName + L": " + failure.strText;
            return false;
        }
    }
    return true;
}

void CScriptRunner::OnFrame(const std::function<void(CFrameWindow&)>& task)
{
    bool bFound = false;
    const auto useFrame = [&](const IScriptHost::Frames& frames) {
        bFound = m_nWindow < frames.size();
        if (bFound)
            task(*frames[m_nWindow]);
    };
    if (!m_host.RunOnMain(useFrame, StepTimeoutMs))
        throw CStepError {L"the browser's window doesn't answer"};
    if (!bFound)
        throw CStepError {L"there is no window " + std::to_wstring(m_nWindow + 1)};
}

void CScriptRunner::OnTab(const std::function<void(CTabWindow&)>& task)
{
    if (!GetTab()->Run(task, StepTimeoutMs))
        throw CStepError {L"the tab doesn't answer"};
}

std::shared_ptr<CTab> CScriptRunner::GetTab()
{
    std::shared_ptr<CTab> tab;
    OnFrame([&](CFrameWindow& frame) { tab = frame.GetActiveTab(); });
    if (!tab)
        throw CStepError {L"the window has no tab"};
    return tab;
}

CTabState CScriptRunner::GetState()
{
    CTabState state;
    OnFrame([&](CFrameWindow& frame) {
        if (frame.GetActiveTab())
            state = frame.GetActiveTab()->m_state;
    });
    return state;
}

HWND CScriptRunner::GetFrameWindow()
{
    HWND hWnd = nullptr;
    OnFrame([&](CFrameWindow& frame) { hWnd = frame; });
    return hWnd;
}

size_t CScriptRunner::CountFrames()
{
    size_t nFrames = 0;
    m_host.RunOnMain([&](const IScriptHost::Frames& frames) { nFrames = frames.size(); }, StepTimeoutMs);
    return nFrames;
}

void CScriptRunner::WaitUntil(const std::function<bool()>& condition, const std::wstring& what)
{
    const ULONGLONG ullEnd = GetTickCount64() + StepTimeoutMs;
    while (!condition())
    {
        if (GetTickCount64() > ullEnd)
            throw CStepError {what};
        Sleep(PollMs);
    }
}

void CScriptRunner::Settle()
{
    // The picture is the engine's last answer; the tab takes what came before it with its next messages.
    OnTab([](CTabWindow& window) { window.FinishDrawing(); });
    const auto isIdle = [this] {
        bool bIdle = true;
        const auto look = [&] { bIdle = bIdle && HIWORD(GetQueueStatus(QS_INPUT | QS_PAINT)) == 0; };
        OnTab([&](CTabWindow&) { look(); });
        OnFrame([&](CFrameWindow&) { look(); });
        return bIdle;
    };
    WaitUntil(isIdle, L"the window doesn't come to rest");
}

void CScriptRunner::Mark()
{
    m_nMark = m_host.GetJournal().GetCount();
}
