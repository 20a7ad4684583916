#pragma once

#include <string>
#include <vector>

/// A step of a script: its name and what follows it on the line.
struct CStep
{
    int nLine = 0; ///< in the file, counted from 1
    std::wstring strName;
    std::vector<std::wstring> arguments;
};

/// Splits a script into its steps: one on each line, words parted by blanks. A word that holds blanks stands in double
/// quotes, in which \" is a quote and \\ a backslash. Empty lines and lines that begin with # are none. False when a
/// quote is not closed; `error` is then one line that names the place.
bool ParseScript(const std::wstring& text, std::vector<CStep>& steps, std::wstring& error);
