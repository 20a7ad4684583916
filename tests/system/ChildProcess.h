#pragma once

#include <windows.h>

#include <filesystem>
#include <string>

/// Starts a program with arguments as they stand, waits for its end and gives its exit code. A program that can't be
/// started or takes longer than half a minute, and is then ended, gives MAXDWORD.
DWORD RunProgram(const std::filesystem::path& program, const std::wstring& strArguments);
