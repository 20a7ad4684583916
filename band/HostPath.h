#pragma once

#include <string>

/// True for the path of a process that must not load the library: "explorer.exe" in it, in any case and anywhere, so a
/// folder named that way excludes a browser too.
bool IsRefusedHost(std::wstring path);
