#pragma once

#include <string>

/// An error in a script of a page that no script handled.
struct CScriptError
{
    std::string strFrameId; ///< of the script's document
    std::wstring strMessage;
    std::wstring strUrl; ///< of the script
    int nLine = 0;       ///< from 1, as nCharacter
    int nCharacter = 0;
};
