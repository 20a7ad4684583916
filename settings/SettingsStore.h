#pragma once

#include <string>

/// Root path of all settings of the product.
inline constexpr wchar_t SettingsRoot[] = L"Software\\Halmere Works\\Trelvix\\v5";

/// The one way to read and write a setting. The settings broker, a process of its own, keeps the values; a cache that
/// the whole process shares stands in front of it, so each value is asked for once. Another process's write to a value
/// that is known here stays unseen.
///
/// Cheap to make: construct one on the stack, use it, drop it. COM must be initialised on the calling thread. A broker
/// that can't be reached is no error: reads then give the empty text, writes reach the cache only. Shortage of memory
/// raises std::bad_alloc or a _com_error with E_OUTOFMEMORY.
class CSettingsStore
{
public:
    explicit CSettingsStore(const std::wstring& root);

    /// The text of a setting; empty when it is absent.
    std::wstring ReadString(const std::wstring& section, const std::wstring& name);
    void WriteString(const std::wstring& value, const std::wstring& section, const std::wstring& name);

    /// The number that the setting's text begins with, 0 when it begins with none, -1 when the setting is absent.
    int ReadInt(const std::wstring& section, const std::wstring& name);
    void WriteInt(int value, const std::wstring& section, const std::wstring& name);

private:
    wchar_t numberBuffer[2048];
    std::wstring rootPath;
};
