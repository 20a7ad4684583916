#pragma once

#include <string>
#include <vector>

/// What the bench browser is told on its command line.
struct COptions
{
    std::wstring strUrl;        ///< page to begin with, empty for the start page
    std::wstring strVersion;    ///< the browser's version to be, empty for that of this build
    std::wstring strEngine;     ///< program of the engine, empty for the usual one
    std::wstring strScript;     ///< file of steps to take instead of waiting for a person
    std::wstring strScreenshot; ///< file for a picture of the window once the page is there; the browser then ends
    std::wstring strOutput;     ///< folder for the pictures that a script takes
    std::wstring strEventLog;   ///< file for the browser's events, one a line
    bool bHelp = false;
};

/// Reads the arguments, the program's name not among them. An option's value may also follow after "=". One argument
/// that is no option is the page to begin with, as other browsers take it. False for a wrong option; `error` is then
/// one line that says what is wrong with it.
bool ParseOptions(const std::vector<std::wstring>& arguments, COptions& options, std::wstring& error);

/// The text of --help.
std::wstring GetUsage();
