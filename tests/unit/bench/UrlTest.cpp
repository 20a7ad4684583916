#include "bench/engine/Url.h"

#include "bench/engine/EngineProcess.h"
#include "bench/protocol/Base64.h"

#include <gtest/gtest.h>

#include <string>

TEST(Url, IsCompletedWhereTheSchemeIsMissing)
{
    EXPECT_EQ(CompleteUrl(L"www.trelvix.example/a?b:c"), L"http://www.trelvix.example/a?b:c");
    EXPECT_EQ(CompleteUrl(L"localhost:8080"), L"http://localhost:8080");
    EXPECT_EQ(CompleteUrl(L"https://host/"), L"https://host/");
    EXPECT_EQ(CompleteUrl(L"trelvix:searchweb?x"), L"trelvix:searchweb?x");
    EXPECT_EQ(CompleteUrl(L"about:blank"), L"about:blank");
    EXPECT_EQ(CompleteUrl(L"C:\\windows"), L"file:///C:/windows");
}

TEST(Url, IsFetchedOrNotByItsScheme)
{
    EXPECT_TRUE(IsFetchedUrl(L"http://host/"));
    EXPECT_TRUE(IsFetchedUrl(L"HTTPS://host/"));
    EXPECT_TRUE(IsFetchedUrl(L"file:///C:/x"));
    EXPECT_FALSE(IsFetchedUrl(L"about:blank"));
    EXPECT_FALSE(IsFetchedUrl(L"trelvix:x"));
    EXPECT_FALSE(IsFetchedUrl(L""));
}

TEST(Url, GivesTheScriptInIt)
{
    EXPECT_TRUE(IsScriptUrl(L"JavaScript:alert(1)"));
    EXPECT_FALSE(IsScriptUrl(L"javascript"));
    EXPECT_EQ(GetScriptOfUrl(L"javascript:a%20%3D%20'\u00e4'"), L"a = '\u00e4'");
    EXPECT_EQ(GetScriptOfUrl(L"javascript:"), L"");
}

TEST(Headers, AreJoinedWithFurtherLines)
{
    const Json joined = JoinHeaders({{"Accept", "*/*"}}, L"X-One: 1\r\nbroken\r\nX-Two:2\r\nX-None: \r\n");
    EXPECT_EQ(joined, Json::array({{{"name", "Accept"}, {"value", "*/*"}},
                                   {{"name", "X-One"}, {"value", "1"}},
                                   {{"name", "X-Two"}, {"value", "2"}},
                                   {{"name", "X-None"}, {"value", ""}}}));
    EXPECT_EQ(JoinHeaders(Json::object(), L""), Json::array());
}

TEST(Base64, KeepsAllBytes)
{
    std::string bytes;
    for (int i = 0; i < 256; ++i)
        bytes += static_cast<char>(i);
    EXPECT_EQ(FromBase64(ToBase64(bytes)), bytes);
    EXPECT_EQ(ToBase64("a=b"), "YT1i");
    EXPECT_EQ(FromBase64(""), "");
    EXPECT_EQ(FromBase64("\x01\x02"), "");
}

TEST(EngineAddress, IsReadFromTwoLinesOrOne)
{
    CEngineAddress address;
    EXPECT_TRUE(ParseEngineAddress("38667\n/devtools/browser/abc", address));
    EXPECT_EQ(address.wPort, 38667);
    EXPECT_EQ(address.strBrowserPath, L"/devtools/browser/abc");
    EXPECT_TRUE(ParseEngineAddress("1 /x ", address));
    EXPECT_FALSE(ParseEngineAddress("", address));
    EXPECT_FALSE(ParseEngineAddress("38667", address));
    EXPECT_FALSE(ParseEngineAddress("x /devtools", address));
    EXPECT_FALSE(ParseEngineAddress("99999 /devtools", address));
    EXPECT_FALSE(ParseEngineAddress("0 /devtools", address));
}
