// A page opens a new browser process: trelvix:newieinstance?

#include "band/PseudoUrl.h"
#include "framework/Handles.h"
#include "tests/fakes/MessageBoxAnswerer.h"
#include "tests/unit/events/ToolbarOnPageFixture.h"

#include <filesystem>

namespace
{
constexpr wchar_t Browser[] = L"\"C:\\Program Files\\Internet Explorer\\iexplore.exe\"";
constexpr DWORD Patience = 20'000; // milliseconds

TEST(NewInstanceCommandLine, IsTheBrowserWithTheAddressAsItsArgument)
{
    EXPECT_EQ(std::wstring(Browser) + L" http://page.test/?a=b&c=%20",
              MakeNewInstanceCommandLine(Browser, L"http://page.test/?a=b&c=%20"));
}

TEST(NewInstanceCommandLine, IsMadeOfATrimmedOne)
{
    EXPECT_EQ(std::wstring(Browser) + L" u",
              MakeNewInstanceCommandLine(L" \t\r\n" + std::wstring(Browser) + L" \t ", L"u"));
}

TEST(NewInstanceCommandLine, TakesAnAddressOfAnyScheme)
{
    EXPECT_TRUE(MakeNewInstanceCommandLine(Browser, L"javascript:alert%281%29"));
    EXPECT_TRUE(MakeNewInstanceCommandLine(Browser, L"-extoff"));
}

TEST(NewInstanceCommandLine, MayHaveNoAddress)
{
    EXPECT_EQ(std::wstring(Browser) + L" ", MakeNewInstanceCommandLine(Browser, L""));
}

class OtherCommandLine : public testing::TestWithParam<const wchar_t*>
{
};

TEST_P(OtherCommandLine, TakesNoPart)
{
    EXPECT_FALSE(MakeNewInstanceCommandLine(GetParam(), L"http://page.test/"));
}

INSTANTIATE_TEST_SUITE_P(NewInstanceCommandLine, OtherCommandLine,
                         testing::Values(L"", L" ", L"\"", L"iexplore.exe", L"iexplore.exe\"", L"C:\\ie\\iexplore.exe",
                                         L"\"C:\\ie\\iexplore.exe", L"\"C:\\ie\\IEXPLORE.EXE\"",
                                         L"\"C:\\ie\\iexplore.exe\" -nohome", L"\"C:\\ie\\iexplore.exe\" http://u/",
                                         L"\"C:\\ie\\other.exe\"", L"\"C:\\a\\iexplore.exe\" \"iexplore.exe\"",
                                         L"\"C:\\ie\\iexplore.exe\" -x \"C:\\ie\\iexplore.exe\""));

class ForbiddenCharacter : public testing::TestWithParam<wchar_t>
{
};

TEST_P(ForbiddenCharacter, IsRefusedAnywhereInAnAddress)
{
    const std::wstring strCharacter(1, GetParam());
    for (const std::wstring& strUrl :
         {strCharacter, strCharacter + L"http://u/", L"http://u/" + strCharacter + L"x", L"http://u/" + strCharacter})
        EXPECT_FALSE(MakeNewInstanceCommandLine(Browser, strUrl));
}

INSTANTIATE_TEST_SUITE_P(NewInstanceCommandLine, ForbiddenCharacter,
                         testing::ValuesIn(std::wstring(L" \t\n\r|<>[]{}()\\")));

TEST(NewInstanceCommandLine, TakesEveryOtherCharacter)
{
    const std::wstring strForbidden = L" \t\n\r|<>[]{}()\\";
    for (unsigned n = 1; n <= 0xFFFF; ++n)
    {
        const auto ch = static_cast<wchar_t>(n);
        const bool bAllowed = strForbidden.find(ch) == std::wstring::npos;
        ASSERT_EQ(bAllowed, MakeNewInstanceCommandLine(Browser, std::wstring(1, ch)).has_value()) << n;
    }
}

class NewInstanceUrl : public CToolbarOnPageTest
{
};

TEST_F(NewInstanceUrl, IsCancelledEvenWhenNothingIsStarted)
{
    const CMessageBoxAnswerer answerer(IDOK);
    EXPECT_TRUE(Navigate(L"trelvix:newieinstance?http://page.test/")) << "this process is no bare browser";
    EXPECT_TRUE(Navigate(L"TRELVIX:NewIEInstance?http://page.test/a b"));
    EXPECT_TRUE(answerer.GetShown().empty()) << "it fails in silence";
}

TEST_F(NewInstanceUrl, IsTakenFromTheTopLevelPageOnly)
{
    CFakeWebBrowser2& frame = m_page.AddFrame(GetTop(), L"http://page.test/frame");
    CBrowserEvent event = CBrowserEvent::BeforeNavigate2(frame.AsFrame(), L"trelvix:newieinstance?http://page.test/");
    Send(event);
    EXPECT_FALSE(event.IsCancelled());
}

TEST_F(NewInstanceUrl, IsRefusedByTheHandlerForAnotherPrefix)
{
    std::wstring strUrl = L"trelvix:newinstance?http://page.test/";
    EXPECT_FALSE(m_pWindow->HandleNewInstanceUrl(strUrl));
    EXPECT_FALSE(Navigate(strUrl));
}

/// Where a started browser tells its command line.
class CCommandLinePipe
{
public:
    CCommandLinePipe()
        : m_strName(L"\\\\.\\pipe\\trelvix-new-instance-" + std::to_wstring(GetCurrentProcessId())),
          m_pipe(CreateNamedPipeW(m_strName.c_str(), PIPE_ACCESS_INBOUND | FILE_FLAG_OVERLAPPED, PIPE_TYPE_BYTE, 1, 0,
                                  0x10000, 0, nullptr)),
          m_event(CreateEventW(nullptr, TRUE, FALSE, nullptr))
    {
    }

    const std::wstring& GetName() const { return m_strName; }

    /// The command line of the process that connects; nothing when none does in time.
    std::wstring Read()
    {
        wchar_t szText[0x1000] = {};
        if (!Finish([&](OVERLAPPED* pOverlapped) { return ConnectNamedPipe(m_pipe.get(), pOverlapped); }) ||
            !Finish([&](OVERLAPPED* pOverlapped) {
                return ReadFile(m_pipe.get(), szText, sizeof(szText) - sizeof(wchar_t), nullptr, pOverlapped);
            }))
            return {};
        return szText;
    }

private:
    template <class Operation>
    bool Finish(Operation operation)
    {
        OVERLAPPED overlapped = {};
        overlapped.hEvent = m_event.get();
        if (operation(&overlapped) || GetLastError() == ERROR_PIPE_CONNECTED)
            return true;
        DWORD cb = 0;
        if (GetLastError() == ERROR_IO_PENDING && WaitForSingleObject(m_event.get(), Patience) == WAIT_OBJECT_0)
            return GetOverlappedResult(m_pipe.get(), &overlapped, &cb, FALSE);
        CancelIo(m_pipe.get());
        GetOverlappedResult(m_pipe.get(), &overlapped, &cb, TRUE);
        return false;
    }

    std::wstring m_strName;
    CUniqueKernelHandle m_pipe;
    CUniqueKernelHandle m_event;
};

class NewInstance : public testing::TestWithParam<const wchar_t*>
{
protected:
    /// Runs a bare browser that gets the address as a command; whether it took the command.
    static bool RunBrowser(const std::wstring& strCommand, const std::wstring& strPipe)
    {
        SetEnvironmentVariableW(L"NEW_INSTANCE_COMMAND", strCommand.c_str());
        SetEnvironmentVariableW(L"NEW_INSTANCE_PIPE", strPipe.c_str());
        STARTUPINFOW startup = {};
        startup.cb = sizeof(startup);
        PROCESS_INFORMATION process = {};
        std::wstring strCommandLine = L"\"" + GetBrowserPath() + L"\"";
        if (!CreateProcessW(nullptr, strCommandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                            &process))
            return false;
        const CUniqueKernelHandle hThread(process.hThread);
        const CUniqueKernelHandle hProcess(process.hProcess);
        DWORD dwExitCode = 0;
        EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(hProcess.get(), Patience));
        GetExitCodeProcess(hProcess.get(), &dwExitCode);
        return dwExitCode == 1;
    }

    static std::wstring GetBrowserPath()
    {
        wchar_t szModule[MAX_PATH] = {};
        GetModuleFileNameW(nullptr, szModule, MAX_PATH);
        return std::filesystem::path(szModule).parent_path() / L"new_instance" / L"iexplore.exe";
    }
};

TEST_P(NewInstance, GetsTheAddressAsItsOnlyArgument)
{
    CCommandLinePipe pipe;
    ASSERT_TRUE(RunBrowser(std::wstring(L"trelvix:newieinstance?") + GetParam(), pipe.GetName()));
    EXPECT_EQ(L"\"" + GetBrowserPath() + L"\" " + GetParam(), pipe.Read());
}

INSTANTIATE_TEST_SUITE_P(NewInstanceUrl, NewInstance,
                         testing::Values(L"http://page.test/?a=b&c=d#e", L"x", L"http://page.test/%20\u65e5"));

TEST_F(NewInstance, IsNotStartedForAForbiddenAddress)
{
    EXPECT_FALSE(RunBrowser(L"trelvix:newieinstance?http://page.test/ -x", L""));
}
} // namespace
