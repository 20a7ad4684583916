#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// An empty folder of a test, gone with all that is in it at the end.
class CTemporaryFolder
{
public:
    CTemporaryFolder();
    CTemporaryFolder(const CTemporaryFolder&) = delete;
    CTemporaryFolder& operator=(const CTemporaryFolder&) = delete;
    ~CTemporaryFolder();

    std::wstring GetPath() const { return m_path.wstring(); }

    /// Writes a file of these very bytes and gives its full path. Folders on the way are made.
    std::wstring Write(const std::wstring& strName, std::string_view strBytes) const;

    /// All bytes of a file.
    std::string Read(const std::wstring& strName) const;

private:
    std::filesystem::path m_path;
};

/// The text as UTF-16 little-endian, without a mark and with one.
std::string AsUtf16(std::wstring_view strText);
std::string AsMarkedUtf16(std::wstring_view strText);
