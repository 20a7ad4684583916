// What a browser is asked for that has tabs: version 7 and later.

#include "framework/HostVersion.h"
#include "tests/unit/band/ToolbarBrowserFixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

using NewTab = CToolbarBrowserTest;

TEST_F(NewTab, ComesWithVersion7)
{
    EXPECT_TRUE(IsIE7OrLater());
}

TEST_F(NewTab, IsAskedFor)
{
    Connect();
    EXPECT_TRUE(GetToolbar().NavigateTo(L"http://page.test/", true));
    EXPECT_THAT(GetFlags(), ElementsAre(2048));
}

TEST_F(NewTab, IsANewWindowWhereNoneCanBeHad)
{
    Connect();
    CFakeCalls::Get().FailCall(1, E_FAIL);
    EXPECT_TRUE(GetToolbar().NavigateTo(L"http://page.test/", true));
    EXPECT_THAT(GetFlags(), ElementsAre(2048, 1));
}

TEST_F(NewTab, IsNotHadWhereThereIsNoNewWindowEither)
{
    Connect();
    CFakeCalls::Get().FailAll("WebBrowser.Navigate", E_FAIL);
    EXPECT_FALSE(GetToolbar().NavigateTo(L"http://page.test/", true));
    EXPECT_THAT(GetFlags(), ElementsAre(2048, 1));
}

TEST_F(NewTab, IsANewWindowAlthoughTheBandWasClosedMeanwhile)
{
    Connect();
    CFakeCalls::Get().FailAll("WebBrowser.Navigate", E_FAIL);
    CFakeCalls::Get().ActIn("WebBrowser.Navigate", [&] { m_spBand->CloseDW(0); });
    EXPECT_FALSE(GetToolbar().NavigateTo(L"http://page.test/", true));
    EXPECT_THAT(GetFlags(), ElementsAre(2048, 1));
}
