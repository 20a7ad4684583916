#include "bench/Message.h"

#include "bench/protocol/Json.h"

#include <windows.h>

namespace
{
constexpr wchar_t BoxTitle[] = L"Trelvix Bench";

bool Write(DWORD dwHandle, const std::wstring& text)
{
    const std::string bytes = ToUtf8(text);
    DWORD dwWritten = 0;
    const HANDLE hFile = GetStdHandle(dwHandle);
    return hFile != nullptr && hFile != INVALID_HANDLE_VALUE &&
           WriteFile(hFile, bytes.data(), static_cast<DWORD>(bytes.size()), &dwWritten, nullptr);
}
} // namespace

void ShowMessage(const std::wstring& text)
{
    if (!Write(STD_OUTPUT_HANDLE, text))
        MessageBoxW(nullptr, text.c_str(), BoxTitle, MB_ICONINFORMATION);
}

void ShowError(const std::wstring& line)
{
    if (!Write(STD_ERROR_HANDLE, L"iexplore: " + line + L"\n"))
        MessageBoxW(nullptr, line.c_str(), BoxTitle, MB_ICONERROR);
}
