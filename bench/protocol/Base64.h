#pragma once

#include <string>

/// Bytes as the protocol carries them in text.
std::string ToBase64(const std::string& bytes);
/// Empty when the text is no such encoding.
std::string FromBase64(const std::string& text);
