#include "tests/system/BuiltFile.h"

#include <windows.h>

namespace
{
std::filesystem::path GetFolderOfTests()
{
    wchar_t szProgram[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, szProgram, MAX_PATH);
    return std::filesystem::path(szProgram).parent_path();
}
} // namespace

std::filesystem::path GetShippedFile(const std::wstring& strName)
{
    return GetFolderOfTests().parent_path() / L"bin" / strName;
}

std::filesystem::path GetTestFile(const std::wstring& strName)
{
    return GetFolderOfTests() / strName;
}
