#include "framework/WinApp.h"

#include <gtest/gtest.h>

TEST(WinApp, StartsAndEndsQuietlyUnlessAClassSaysOtherwise)
{
    CWinApp app;
    EXPECT_TRUE(app.InitInstance());
    EXPECT_EQ(0, app.ExitInstance());
}
