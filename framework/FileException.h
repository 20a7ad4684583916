#pragma once

#include <windows.h>

#include <string>

/// A failed file operation: thrown by value, or filled in as the record of an Open that failed.
class CFileException
{
public:
    enum
    {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    int m_cause = none;
    DWORD m_lOsError = ERROR_SUCCESS;
    std::wstring m_strFileName;

    CFileException() = default;

    /// The record of an error code of the platform.
    CFileException(DWORD lOsError, const std::wstring& fileName);

    /// The cause that an error code of the platform stands for.
    static int OsErrorToException(DWORD lOsError);
};
