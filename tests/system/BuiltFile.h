#pragma once

#include <filesystem>
#include <string>

/// The full path of a file that the build made, in the folder of what ships ("bin") or of the tests ("tests").
std::filesystem::path GetShippedFile(const std::wstring& strName);
std::filesystem::path GetTestFile(const std::wstring& strName);
