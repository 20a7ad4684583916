#pragma once

#include <optional>
#include <string_view>

/// Outer size of a window in pixels.
struct WindowSize
{
    int width;
    int height;

    bool operator==(const WindowSize&) const = default;
};

/// Takes a text of the form "800x600". Nothing for any other form, and for sizes that no screen can hold.
std::optional<WindowSize> ParseWindowSize(std::wstring_view text);

/// Takes the decimal number of a window handle, whose 32 bits may count as signed. Nothing for any other text.
std::optional<long> ParseWindowNumber(std::wstring_view text);
