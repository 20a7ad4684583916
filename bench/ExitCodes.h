#pragma once

/// Exit code for options or a script that can't be understood; other failures have EXIT_FAILURE.
constexpr int ExitWrongOption = 2;
