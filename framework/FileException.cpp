#include "framework/FileException.h"

CFileException::CFileException(DWORD lOsError, const std::wstring& fileName)
    : m_cause(OsErrorToException(lOsError)), m_lOsError(lOsError), m_strFileName(fileName)
{
}

int CFileException::OsErrorToException(DWORD lOsError)
{
    switch (lOsError)
    {
    case ERROR_SUCCESS:
        return none;
    case ERROR_FILE_NOT_FOUND:
        return fileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
        return badPath;
    case ERROR_TOO_MANY_OPEN_FILES:
        return tooManyOpenFiles;
    case ERROR_ACCESS_DENIED:
        return accessDenied;
    case ERROR_INVALID_HANDLE:
        return invalidFile;
    case ERROR_NEGATIVE_SEEK:
    case ERROR_SEEK:
        return badSeek;
    case ERROR_SHARING_VIOLATION:
        return sharingViolation;
    case ERROR_LOCK_VIOLATION:
        return lockViolation;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return diskFull;
    case ERROR_HANDLE_EOF:
        return endOfFile;
    default:
        return genericException;
    }
}
