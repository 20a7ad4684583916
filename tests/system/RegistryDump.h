#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <vector>

/// The contents of a tree of the registry as text, one entry for each key and each value, all paths and names in lower
/// case. A key stands under its path and a closing backslash, with no text; a value under the key's path, a backslash
/// and its name ("@" for the default value), with its type and data: text as it is, numbers in decimal, everything else
/// as the type's number and the data's bytes in hexadecimal digits.
using CRegistryDump = std::map<std::wstring, std::wstring>;

/// `strPath` is the tree's path below `hRoot` and opens all entries. A tree that isn't there gives no entry.
CRegistryDump DumpRegistry(HKEY hRoot, const std::wstring& strPath);

/// A path as it stands in a dump.
std::wstring ToLower(std::wstring strPath);

/// The entries of `after` that `before` lacks or has with another text.
CRegistryDump GetAdded(const CRegistryDump& before, const CRegistryDump& after);
