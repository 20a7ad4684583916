#include "bench/server/HttpRequest.h"

#include <gmock/gmock.h>

namespace
{
std::optional<CHttpRequest> Get(const std::string& target)
{
    return ParseHttpRequest("GET " + target + " HTTP/1.1\r\nHost: a\r\n\r\n");
}

TEST(ParseHttpRequest, TakesMethodPathAndQuery)
{
    const auto request = ParseHttpRequest("HEAD /a/b.html?x=1&y HTTP/1.0\r\n\r\n");
    ASSERT_TRUE(request);
    EXPECT_EQ(request->strMethod, "HEAD");
    EXPECT_EQ(request->strPath, "/a/b.html");
    EXPECT_EQ(request->strQuery, "x=1&y");
}

TEST(ParseHttpRequest, DecodesThePath)
{
    const auto request = Get("/caf%C3%A9%20au.html");
    ASSERT_TRUE(request);
    EXPECT_EQ(request->strPath, "/caf\xC3\xA9 au.html");
}

TEST(ParseHttpRequest, RefusesPathsThatLeadOutOfTheFolder)
{
    for (const char* pszTarget : {"/../x", "/a/../../x", "/%2e%2e/x", "/..%2fx", "/a%5c..%5cx", "/c:/x", "/c%3A/x", "x",
                                  "/a%00b", "/a%0Ab", "http://other/"})
        EXPECT_FALSE(Get(pszTarget)) << pszTarget;
}

TEST(ParseHttpRequest, RefusesBrokenEscapes)
{
    for (const char* pszTarget : {"/%", "/%4", "/%zz", "/a%G0"})
        EXPECT_FALSE(Get(pszTarget)) << pszTarget;
}

TEST(ParseHttpRequest, RefusesWhatIsNoRequest)
{
    for (const char* pszHead : {"", "GET", "GET /", "GET / FTP/1.0\r\n", "\r\n\r\n", "   "})
        EXPECT_FALSE(ParseHttpRequest(pszHead)) << pszHead;
}

TEST(GetQueryValue, FindsANameAtAnyPlace)
{
    EXPECT_EQ(GetQueryValue("ms=10&name=x", "ms"), "10");
    EXPECT_EQ(GetQueryValue("ms=10&name=x", "name"), "x");
}

TEST(GetQueryValue, DecodesTheValue)
{
    EXPECT_EQ(GetQueryValue("to=%2Fa%20b+c", "to"), "/a b+c");
    EXPECT_EQ(GetQueryValue("to=%2", "to"), "");
}

TEST(GetQueryValue, IsEmptyForAnotherName)
{
    EXPECT_EQ(GetQueryValue("items=10", "ms"), "");
    EXPECT_EQ(GetQueryValue("", "ms"), "");
    EXPECT_EQ(GetQueryValue("ms", "ms"), "");
}

TEST(GetContentType, GoesByTheExtension)
{
    EXPECT_STREQ(GetContentType("/a.html"), "text/html; charset=utf-8");
    EXPECT_STREQ(GetContentType("/a.svg"), "image/svg+xml");
    EXPECT_STREQ(GetContentType("/a.bin"), "application/octet-stream");
}
} // namespace
