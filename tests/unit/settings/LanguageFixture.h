#pragma once

#include "settings/LanguagePack.h"
#include "tests/unit/settings/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

inline constexpr std::uint16_t Croatian = 0x1A;
inline constexpr std::uint16_t German = 0x07;

/// A text that the resources have, its id, and an id of which they have none.
inline constexpr unsigned KnownId = 114;
inline constexpr wchar_t KnownText[] = L"English (default)";
inline constexpr unsigned UnknownId = 263;

/// An installation folder without packs. What a test holds of the language state is dropped at its end.
class CLanguageTest : public testing::Test
{
protected:
    ~CLanguageTest() override;

    /// Writes a pack of the installation folder and gives its name in the table.
    std::wstring WritePack(const std::wstring& strName, std::string_view strBytes);

    void Init(const std::wstring& strFolder, std::uint16_t language);
    /// Loads a pack with these bytes.
    void Load(std::string_view strBytes);
    void LoadText(std::wstring_view strText) { Load(AsMarkedUtf16(strText)); }

    /// The text of an id, or a sign that there is none.
    static std::wstring TextOf(unsigned nId);

    static constexpr wchar_t NoText[] = L"(none)";

    CTemporaryFolder m_folder;

private:
    int m_nHolds = 0;
};
