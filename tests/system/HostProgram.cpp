// host_program LIBRARY: loads a library as a browser's process would. The exit code is 0 when it is loaded, the
// platform's error otherwise.

#include "framework/Handles.h"

#include <windows.h>

int wmain(int argc, wchar_t* argv[])
{
    if (argc != 2)
        return ERROR_BAD_ARGUMENTS;
    const CUniqueModule library(LoadLibraryW(argv[1]));
    return library != nullptr ? ERROR_SUCCESS : static_cast<int>(GetLastError());
}
