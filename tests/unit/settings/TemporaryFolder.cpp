#include "tests/unit/settings/TemporaryFolder.h"

#include <windows.h>

#include <fstream>
#include <iterator>

CTemporaryFolder::CTemporaryFolder()
{
    wchar_t szTemp[MAX_PATH] = {};
    wchar_t szFile[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, szTemp);
    GetTempFileNameW(szTemp, L"tvx", 0, szFile);
    DeleteFileW(szFile);
    m_path = szFile;
    std::filesystem::create_directory(m_path);
}

CTemporaryFolder::~CTemporaryFolder()
{
    std::error_code error;
    std::filesystem::remove_all(m_path, error);
}

std::wstring CTemporaryFolder::Write(const std::wstring& strName, std::string_view strBytes) const
{
    const auto path = m_path / strName;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << strBytes;
    return path.wstring();
}

std::string CTemporaryFolder::Read(const std::wstring& strName) const
{
    std::ifstream file(m_path / strName, std::ios::binary);
    return {std::istreambuf_iterator(file), {}};
}

std::string AsUtf16(std::wstring_view strText)
{
    return {reinterpret_cast<const char*>(strText.data()), strText.size() * sizeof(wchar_t)};
}

std::string AsMarkedUtf16(std::wstring_view strText)
{
    return "\xFF\xFE" + AsUtf16(strText);
}
