#include "bench/Application.h"

#include "bench/engine/Url.h"
#include "bench/Message.h"
#include "bench/server/PageList.h"

#include <algorithm>
#include <filesystem>

namespace
{
constexpr wchar_t DefaultEngine[] = L"chromium";

/// Whether it is the name of a page of the bench, such as "frames.html" or "slow?ms=100".
bool IsOwnPage(const std::wstring& address)
{
    const std::wstring file = address.substr(0, address.find_first_of(L"?#"));
    const bool bPlain = file.find_first_of(L":\\/ ") == std::wstring::npos;
    return bPlain && (file.ends_with(L".html") || file == L"slow" || file == L"redirect" || file == L"download");
}
} // namespace

CApplication::CApplication(const COptions& options) : m_options(options), m_queue(std::make_shared<CTaskQueue>()) {}

CApplication::~CApplication()
{
    m_queue->Close();
}

std::wstring CApplication::GetProgramFolder()
{
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    // The browsers of older versions stand in folders of their own beside the newest.
    return (std::filesystem::exists(folder / L"pages") ? folder : folder.parent_path()).wstring();
}

int CApplication::Run(int nShow)
{
    std::wstring error;
    if (!Start(error))
    {
        ShowError(error);
        return EXIT_FAILURE;
    }
    const std::wstring first = m_options.strUrl.empty() ? GetListedPages().front().pszFile : m_options.strUrl;
    if (!ShowWindow(CompleteAddress(first), nShow))
        return EXIT_FAILURE;
    RunMessageLoop();
    return EXIT_SUCCESS;
}

bool CApplication::Start(std::wstring& error)
{
    if (!m_server.Start(std::filesystem::path(GetProgramFolder()) / L"pages"))
    {
        error = L"There is no port for the pages of the bench.";
        return false;
    }
    return m_engine.Start(m_options.strEngine.empty() ? DefaultEngine : m_options.strEngine, error);
}

bool CApplication::ShowWindow(const std::wstring& url, int nShow)
{
    IApplication& application = *this;
    m_frames.push_back(std::make_unique<CFrameWindow>(application));
    return m_frames.back()->Create(url, nShow);
}

void CApplication::RunMessageLoop()
{
    MSG msg;
    while (GetMessageW(&msg, nullptr, 0, 0) > 0)
    {
        const auto takesKey = [&](const auto& frame) {
            return (msg.hwnd == *frame || IsChild(*frame, msg.hwnd)) && frame->TranslateKey(&msg);
        };
        if (std::ranges::any_of(m_frames, takesKey))
            continue;
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
}

IEventTap* CApplication::GetEventTap()
{
    return nullptr;
}

std::wstring CApplication::CompleteAddress(const std::wstring& address)
{
    return IsOwnPage(address) ? m_server.GetAddress() + address : CompleteUrl(address);
}

void CApplication::OpenWindow(const std::wstring& url)
{
    m_queue->Post([=, this] { ShowWindow(url, SW_SHOWNORMAL); });
}

void CApplication::OnFrameClosed(CFrameWindow& frame)
{
    m_queue->Post([&frame, this] {
        std::erase_if(m_frames, [&](const auto& each) { return each.get() == &frame; });
        if (m_frames.empty())
            PostQuitMessage(0);
    });
}
