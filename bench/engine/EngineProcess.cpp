#include "bench/engine/EngineProcess.h"

#include "bench/engine/NativeEngine.h"
#include "bench/engine/ScriptedEngine.h"

#include <shlwapi.h>

#include <sstream>

std::unique_ptr<CEngineProcess> CEngineProcess::Create(const std::wstring& program)
{
    if (lstrcmpiW(PathFindExtensionW(program.c_str()), L".exe") == 0)
        return std::make_unique<CNativeEngine>(program);
    return std::make_unique<CScriptedEngine>(program);
}

bool ParseEngineAddress(const std::string& text, CEngineAddress& address)
{
    std::istringstream words(text);
    std::string path;
    if (!(words >> address.wPort >> path) || address.wPort == 0 || path[0] != '/')
        return false;
    address.strBrowserPath.assign(path.begin(), path.end());
    return true;
}
