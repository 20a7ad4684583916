#pragma once

#include <string>

/// The version that this build of the browser has in its version resource, such as "8.0".
std::wstring GetOwnVersion();

/// Runs the build of another version with this program's command line and waits for its end; the result is its exit
/// code.
int RunOtherVersion(const std::wstring& version);
