#include "band/HostPath.h"

#include <gtest/gtest.h>

TEST(HostPath, IsRefusedForTheShell)
{
    EXPECT_TRUE(IsRefusedHost(L"C:\\Windows\\explorer.exe"));
}

TEST(HostPath, IsRefusedInAnyCase)
{
    EXPECT_TRUE(IsRefusedHost(L"C:\\WINDOWS\\EXPLORER.EXE"));
    EXPECT_TRUE(IsRefusedHost(L"c:\\windows\\Explorer.Exe"));
}

TEST(HostPath, IsTakenForABrowser)
{
    EXPECT_FALSE(IsRefusedHost(L"C:\\Program Files\\Internet Explorer\\iexplore.exe"));
    EXPECT_FALSE(IsRefusedHost(L"C:\\Windows\\explorer"));
    EXPECT_FALSE(IsRefusedHost(L""));
}

TEST(HostPath, IsRefusedWhereverTheNameStands)
{
    EXPECT_TRUE(IsRefusedHost(L"C:\\explorer.exe.old\\iexplore.exe")) << "a folder excludes a browser too";
    EXPECT_TRUE(IsRefusedHost(L"C:\\tools\\myexplorer.exe"));
}
