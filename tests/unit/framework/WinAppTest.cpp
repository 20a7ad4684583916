#include "framework/WinApp.h"

#include <gtest/gtest.h>

TEST(WinApp, IsFoundAsTheModulesOneApplicationWhileItLives)
{
    EXPECT_EQ(nullptr, AfxGetApp());
    {
        CWinApp app;
        EXPECT_EQ(&app, AfxGetApp());
    }
    EXPECT_EQ(nullptr, AfxGetApp());
}

TEST(WinApp, StartsAndEndsQuietlyUnlessAClassSaysOtherwise)
{
    CWinApp app;
    EXPECT_TRUE(app.InitInstance());
    EXPECT_EQ(0, app.ExitInstance());
}
