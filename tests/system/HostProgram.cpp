// host_program LIBRARY: loads a library as a browser's process would. The exit code is 0 when it is loaded, the
// platform's error otherwise.

#include <windows.h>

int wmain(int argc, wchar_t* argv[])
{
    if (argc != 2)
        return ERROR_BAD_ARGUMENTS;
    const HMODULE hLibrary = LoadLibraryW(argv[1]);
    if (hLibrary == nullptr)
        return static_cast<int>(GetLastError());
    FreeLibrary(hLibrary);
    return ERROR_SUCCESS;
}
