#pragma once

#include <string>

/// The folder in which the product lies, as its installation recorded it for the machine; empty when there is no
/// record.
std::wstring ReadInstallFolder();
