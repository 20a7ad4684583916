// Addresses that a page makes up to get more than it is given.

#include "band/PseudoUrl.h"
#include "tests/fakes/MessageBoxAnswerer.h"
#include "tests/unit/events/ToolbarOnPageFixture.h"

#include <windows.h>
#include <gmock/gmock.h>
#include <shellapi.h>

#include <random>

namespace
{
constexpr int AddressCount = 10'000;
constexpr unsigned Seed = 20260704;
constexpr wchar_t Browser[] = L"\"C:\\Program Files\\Internet Explorer\\iexplore.exe\"";

/// Random text of what means something to a command line, an address or a template.
class CHostileText
{
public:
    std::wstring Make()
    {
        std::wstring strText;
        for (unsigned n = Below(12); n != 0; --n)
            strText += MakePiece();
        return strText;
    }

    /// A message box takes long, so few of the addresses ask for one.
    std::wstring MakeAddress()
    {
        static constexpr const wchar_t* starts[] = {L"trelvix:newieinstance?",
                                                    L"Trelvix:NEWIEINSTANCE?",
                                                    L"trelvix:newieinstance",
                                                    L"trelvix:",
                                                    L"trelvix:searchweb",
                                                    L"http://page.test/",
                                                    L""};
        return (Below(20) == 0 ? L"TRELVIX:SearchWeb?" : starts[Below(std::size(starts))]) + Make();
    }

private:
    std::wstring MakePiece()
    {
        static constexpr const wchar_t* pieces[] = {L"\"",
                                                    L"\"\"",
                                                    L"'",
                                                    L"\\",
                                                    L"\\\"",
                                                    L" ",
                                                    L"\t",
                                                    L"\n",
                                                    L"^",
                                                    L"&",
                                                    L"|",
                                                    L"%20",
                                                    L"%22",
                                                    L"%00",
                                                    L"%",
                                                    L"%%WORD%%",
                                                    L"%s",
                                                    L"%n",
                                                    L"name=",
                                                    L"url=",
                                                    L"http://",
                                                    L"https://u/",
                                                    L"showbutton=1",
                                                    L"=",
                                                    L"-x",
                                                    L"/x",
                                                    L"iexplore.exe\"",
                                                    L"..",
                                                    L"\u00a0",
                                                    L"\u2028",
                                                    L"\ufeff",
                                                    L"\xd800",
                                                    L"\x7f",
                                                    L"\v",
                                                    L"javascript:",
                                                    L"[",
                                                    L"}",
                                                    L"file:///c:/",
                                                    L"name=n&url=http://u/"};
        if (Below(8) == 0)
            return std::wstring(Below(3000), static_cast<wchar_t>(1 + Below(0xFFFF)));
        return pieces[Below(std::size(pieces))];
    }

    unsigned Below(size_t n) { return static_cast<unsigned>(m_random() % n); }

    std::mt19937 m_random {Seed};
};

std::vector<std::wstring> SplitCommandLine(const std::wstring& strCommandLine)
{
    int nArguments = 0;
    LPWSTR* const ppszArguments = CommandLineToArgvW(strCommandLine.c_str(), &nArguments);
    std::vector<std::wstring> arguments(ppszArguments, ppszArguments + nArguments);
    LocalFree(ppszArguments);
    return arguments;
}

TEST(HostileAddress, GivesANewProcessOneArgumentOrNone)
{
    CHostileText text;
    int nStarted = 0;
    for (int n = 0; n < AddressCount; ++n)
    {
        const std::wstring strUrl = text.Make();
        const auto strCommandLine = MakeNewInstanceCommandLine(Browser, strUrl);
        if (!strCommandLine)
            continue;
        ++nStarted;
        const std::vector<std::wstring> arguments = SplitCommandLine(*strCommandLine);
        ASSERT_EQ(strUrl.empty() ? 1u : 2u, arguments.size()) << n;
        ASSERT_EQ(L"C:\\Program Files\\Internet Explorer\\iexplore.exe", arguments.front()) << n;
    }
    EXPECT_GT(nStarted, AddressCount / 10);
}

class HostileAddresses : public CToolbarOnPageTest
{
};

TEST_F(HostileAddresses, StoreNothingUnlessTheUserSaysOK)
{
    CHostileText text;
    const CMessageBoxAnswerer answerer(IDCANCEL);
    m_broker->m_writes.clear();
    for (int n = 0; n < AddressCount && !HasFailure(); ++n)
    {
        const std::wstring strUrl = text.MakeAddress();
        const bool bCommand = RecognisePseudoUrl(strUrl) != EPseudoUrl::None;
        EXPECT_EQ(bCommand, Navigate(strUrl)) << n;
        CFakeButtons::Get().TakeCalls();
        CFakeCalls::Get().ClearLog();
    }
    EXPECT_THAT(m_broker->m_writes, testing::IsEmpty());
    EXPECT_EQ(ButtonCount, CFakeButtons::Get().m_nCreated) << "no layout was loaded after the first";
    EXPECT_GT(answerer.GetShown().size(), AddressCount / 50u);
}
} // namespace
