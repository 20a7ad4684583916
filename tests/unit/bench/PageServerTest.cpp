#include "bench/server/PageServer.h"

#include "bench/protocol/Http.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <memory>

namespace
{
using testing::HasSubstr;
using testing::Optional;
using testing::StartsWith;

constexpr unsigned TimeoutMs = 20'000;

struct CAnswer
{
    DWORD dwStatus = 0;
    std::wstring strType;
    std::string strBody;
};

class PageServerTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_folder = std::filesystem::temp_directory_path() / ("bench-pages." + std::to_string(GetCurrentProcessId()));
        std::filesystem::create_directories(m_folder);
        std::ofstream(m_folder / "page.html") << "<p>A page</p>";
        ASSERT_TRUE(m_server->Start(m_folder));
    }

    void TearDown() override { std::filesystem::remove_all(m_folder); }

    WORD GetPort() const
    {
        const std::wstring& address = m_server->GetAddress();
        return static_cast<WORD>(std::stoi(address.substr(address.rfind(L':') + 1)));
    }

    CLoopbackSocket Connect() const
    {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_port = htons(GetPort());
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        const SOCKET hSocket = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
        CLoopbackSocket connection(hSocket);
        EXPECT_EQ(connect(hSocket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        return connection;
    }

    CAnswer Get(const std::wstring& path, const wchar_t* pszMethod = L"GET") const
    {
        CLoopbackRequest request(GetPort(), pszMethod, path);
        CAnswer answer;
        if (!request.Send())
            return answer;
        DWORD dwBytes = sizeof answer.dwStatus;
        WinHttpQueryHeaders(request.Get(), WINHTTP_QUERY_STATUS_CODE | WINHTTP_QUERY_FLAG_NUMBER, nullptr,
                            &answer.dwStatus, &dwBytes, nullptr);
        wchar_t szType[100] = {};
        dwBytes = sizeof szType;
        WinHttpQueryHeaders(request.Get(), WINHTTP_QUERY_CONTENT_TYPE, nullptr, szType, &dwBytes, nullptr);
        answer.strType = szType;
        answer.strBody = request.ReadBody();
        return answer;
    }

    CSocketLibrary m_sockets; ///< the server's own goes with it
    std::filesystem::path m_folder;
    std::unique_ptr<CPageServer> m_server = std::make_unique<CPageServer>();
};

TEST_F(PageServerTest, GivesAFileWithItsType)
{
    const CAnswer answer = Get(L"/page.html");
    EXPECT_EQ(answer.dwStatus, 200u);
    EXPECT_EQ(answer.strType, L"text/html; charset=utf-8");
    EXPECT_EQ(answer.strBody, "<p>A page</p>");
}

TEST_F(PageServerTest, SaysThatAFileIsMissing)
{
    EXPECT_EQ(Get(L"/none.html").dwStatus, 404u);
}

TEST_F(PageServerTest, RefusesAWayOutOfItsFolder)
{
    EXPECT_EQ(Get(L"/a%5c..%5c..%5cpage.html").dwStatus, 400u);
}

TEST_F(PageServerTest, RefusesOtherMethods)
{
    EXPECT_EQ(Get(L"/page.html", L"DELETE").dwStatus, 405u);
    EXPECT_TRUE(std::filesystem::exists(m_folder / "page.html"));
}

TEST_F(PageServerTest, SendsOnToAPageOfItsOwn)
{
    EXPECT_EQ(Get(L"/redirect?to=/page.html").strBody, "<p>A page</p>");
}

TEST_F(PageServerTest, SendsNobodyElsewhere)
{
    // The start page, which this folder lacks, takes the place of an address of another server.
    EXPECT_EQ(Get(L"/redirect?to=//127.0.0.1:9/").dwStatus, 404u);
}

TEST_F(PageServerTest, ShowsWhatWasSearchedForAsText)
{
    EXPECT_THAT(Get(L"/search?x=1&q=a<b").strBody, HasSubstr("a&lt;b"));
}

TEST_F(PageServerTest, AnswersWithTheStatusThatIsAskedFor)
{
    EXPECT_EQ(Get(L"/status/503").dwStatus, 503u);
}

TEST_F(PageServerTest, KnowsItsOwnPathsAndThePagesOfItsFolder)
{
    for (const char* pszPath : {"/slow", "/redirect", "/download", "/search", "/status/404", "/page.html"})
        EXPECT_TRUE(CPageServer::Knows(pszPath)) << pszPath;
    for (const char* pszPath : {"/", "/slower", "/status", "/host/page.html", "/www.trelvix.example"})
        EXPECT_FALSE(CPageServer::Knows(pszPath)) << pszPath;
}

TEST_F(PageServerTest, OffersADownload)
{
    EXPECT_EQ(Get(L"/download").strType, L"application/octet-stream");
}

TEST_F(PageServerTest, ServesOthersWhileOneWaitsAndEndsWithoutThatOne)
{
    CLoopbackSocket slow = Connect();
    ASSERT_TRUE(slow.Send("GET /slow?ms=30000&to=/page.html HTTP/1.1\r\n\r\n"));
    EXPECT_EQ(Get(L"/page.html").dwStatus, 200u);
    m_server.reset();
    EXPECT_THAT(slow.ReadLine(TimeoutMs), Optional(StartsWith("HTTP/1.1 200 ")));
}
} // namespace
