// What a browser is asked for that has no tabs: before version 7.

#include "tests/unit/band/ToolbarBrowserFixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

using NewWindow = CToolbarBrowserTest;

TEST_F(NewWindow, IsAskedFor)
{
    Connect();
    EXPECT_TRUE(GetToolbar().NavigateTo(L"http://page.test/", true));
    EXPECT_THAT(GetFlags(), ElementsAre(1));
}

TEST_F(NewWindow, IsAskedForOnce)
{
    Connect();
    CFakeCalls::Get().FailCall(1, E_FAIL);
    EXPECT_FALSE(GetToolbar().NavigateTo(L"http://page.test/", true));
    EXPECT_THAT(GetFlags(), ElementsAre(1));
}
