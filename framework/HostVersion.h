#pragma once

/// Major and minor number as one: the minor is divided by 10 until it is below 1, so 7 and 5 give 7.5, 9 and 10
/// give 9.1.
double MakeVersionNumber(unsigned nMajor, unsigned nMinor);

/// The version of the host browser from the product version of the process's main file, computed once per process.
/// 0.0 when the file has no version block.
double GetIEVersion();

bool IsIE7OrLater();
bool IsIE8OrLater();
