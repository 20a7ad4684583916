// Which programs may load the library, told by the path of their file.

#include "tests/system/BuiltFile.h"
#include "tests/system/ChildProcess.h"

#include <windows.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace
{
/// A folder of its own for each test, gone afterwards.
class HostProcess : public testing::Test
{
protected:
    HostProcess()
        : m_folder(std::filesystem::temp_directory_path() / (L"trelvix-" + std::to_wstring(GetCurrentProcessId())))
    {
        std::filesystem::create_directories(m_folder);
    }
    ~HostProcess() override
    {
        std::error_code error;
        std::filesystem::remove_all(m_folder, error);
    }

    /// The result of loading the library in a program of that path below the test's folder.
    DWORD LoadIn(const std::wstring& strPath) const
    {
        const std::filesystem::path program = m_folder / strPath;
        std::filesystem::create_directories(program.parent_path());
        std::filesystem::copy_file(GetTestFile(L"host_program.exe"), program);
        return RunProgram(program, L"\"" + GetShippedFile(L"Trelvix.x64.dll").wstring() + L"\"");
    }

private:
    std::filesystem::path m_folder;
};
} // namespace

TEST_F(HostProcess, LoadsTheLibraryAsTheBrowser)
{
    EXPECT_EQ(0u, LoadIn(L"iexplore.exe"));
}

TEST_F(HostProcess, LoadsTheLibraryUnderAnotherName)
{
    EXPECT_EQ(0u, LoadIn(L"explore.exe"));
    EXPECT_EQ(0u, LoadIn(L"explorer2.exe"));
    EXPECT_EQ(0u, LoadIn(L"explorer\\exe.exe"));
}

TEST_F(HostProcess, FailsToLoadTheLibraryAsTheShell)
{
    EXPECT_EQ(DWORD {ERROR_DLL_INIT_FAILED}, LoadIn(L"explorer.exe"));
}

TEST_F(HostProcess, FailsToLoadTheLibraryAsTheShellInAnyCase)
{
    EXPECT_EQ(DWORD {ERROR_DLL_INIT_FAILED}, LoadIn(L"upper\\EXPLORER.EXE"));
    EXPECT_EQ(DWORD {ERROR_DLL_INIT_FAILED}, LoadIn(L"mixed\\Explorer.exE"));
}

TEST_F(HostProcess, FailsToLoadTheLibraryWhereTheNameStandsAnywhereInThePath)
{
    EXPECT_EQ(DWORD {ERROR_DLL_INIT_FAILED}, LoadIn(L"my iexplorer.exe"));
    EXPECT_EQ(DWORD {ERROR_DLL_INIT_FAILED}, LoadIn(L"explorer.exe.bak.exe"));
    EXPECT_EQ(DWORD {ERROR_DLL_INIT_FAILED}, LoadIn(L"An Explorer.exe Folder\\iexplore.exe"));
}
