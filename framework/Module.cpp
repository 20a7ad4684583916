#include "framework/Module.h"

extern "C" IMAGE_DOS_HEADER __ImageBase;

HINSTANCE AfxGetInstanceHandle()
{
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}
