#include "framework/ReplaceAll.h"
#include "settings/LanguagePack.h"
#include "tests/system/BuiltFile.h"
#include "tests/unit/settings/LanguageFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cwchar>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace
{
constexpr unsigned FirstId = 20000; // no built-in text has such numbers
constexpr unsigned Seeds = 1000;

/// The bytes of one of the packs that ship, in turn.
std::string PackOfSeed(unsigned nSeed)
{
    static const std::vector<std::string> packs = [] {
        std::vector<std::string> read;
        for (const auto& entry : std::filesystem::directory_iterator(GetShippedFile(L"Languages")))
        {
            std::ifstream file(entry.path(), std::ios::binary);
            read.emplace_back(std::istreambuf_iterator(file), std::istreambuf_iterator<char>());
        }
        return read;
    }();
    return packs.at(nSeed % packs.size());
}

/// Bytes are changed, left out and put in, and the rest is cut off, all at random places.
std::string Damage(std::string strBytes, unsigned nSeed)
{
    std::mt19937 random(nSeed);
    const auto anyOf = [&](size_t n) { return std::uniform_int_distribution<size_t>(0, n)(random); };
    for (size_t n = 1 + anyOf(20); n > 0 && !strBytes.empty(); --n)
    {
        const size_t nPlace = anyOf(strBytes.size() - 1);
        switch (anyOf(3))
        {
        case 0:
            strBytes[nPlace] = static_cast<char>(anyOf(255));
            break;
        case 1:
            strBytes.erase(nPlace, anyOf(9));
            break;
        case 2:
            strBytes.insert(nPlace, std::string(anyOf(9), static_cast<char>(anyOf(255))));
            break;
        default:
            strBytes[nPlace] = "\0\n\r:#\\"[anyOf(5)];
        }
    }
    if (anyOf(9) == 0)
        strBytes.resize(anyOf(strBytes.size()));
    return strBytes;
}

/// A line's number and its text, the escapes as written; number 0 for a line that defines nothing.
std::pair<unsigned, std::wstring> EntryOf(std::wstring strLine)
{
    strLine.erase(0, strLine.find_first_not_of(L" \t"));
    const size_t nToken = strLine.find_first_not_of(L':');
    if (strLine.starts_with(L'#') || nToken == strLine.npos)
        return {};
    const std::wstring strToken = strLine.substr(nToken, strLine.find(L':', nToken) - nToken);
    const auto nId = static_cast<unsigned>(std::wcstol(strToken.c_str(), nullptr, 10));
    return {nId, strToken.size() < strLine.size() ? strLine.substr(strToken.size() + 1) : std::wstring()};
}

/// The entries of a pack, in order, read in the simplest way and without the product's own reader.
std::vector<std::pair<unsigned, std::wstring>> EntriesOf(const std::string& strBytes)
{
    if (!strBytes.starts_with("\xFF\xFE"))
        return {};
    std::wstring strText((strBytes.size() - 2) / sizeof(wchar_t), L'\0');
    memcpy(strText.data(), strBytes.data() + 2, strText.size() * sizeof(wchar_t));
    std::vector<std::pair<unsigned, std::wstring>> entries;
    std::wistringstream lines(strText);
    for (std::wstring strLine; std::getline(lines, strLine);)
    {
        if (strLine.ends_with(L'\r'))
            strLine.pop_back();
        strLine.resize(std::min(strLine.find(L'\0'), strLine.size()));
        entries.push_back(EntryOf(strLine));
    }
    std::erase_if(entries, [](const auto& entry) { return entry.first == 0; });
    return entries;
}

/// The texts as the loaded pack shows them: of several entries the last one counts.
std::map<unsigned, std::wstring> TextsOf(const std::string& strBytes)
{
    std::map<unsigned, std::wstring> texts;
    for (const auto& [nId, strText] : EntriesOf(strBytes))
        texts[nId] = ReplaceAll(ReplaceAll(ReplaceAll(strText, L"\\r\\n", L"\r\n"), L"\\n", L"\n"), L"\\t", L"\t");
    return texts;
}

/// The text of a number as it is read by itself, or the sign that there is none: the first entry counts.
std::wstring SingleTextOf(const std::string& strBytes, unsigned nId, const std::wstring& strNone)
{
    const auto entries = EntriesOf(strBytes);
    const auto found = std::ranges::find(entries, nId, &std::pair<unsigned, std::wstring>::first);
    return found == entries.end() ? strNone : ReplaceAll(found->second, L"\\n\\r", L"\n\r");
}

class DamagedPack : public CLanguageTest
{
};
} // namespace

TEST_F(DamagedPack, GivesTheTextOfEveryLineThatIsSound)
{
    ASSERT_GT(TextsOf(PackOfSeed(0)).size(), 100u);
    for (unsigned nSeed = 0; nSeed < Seeds; ++nSeed)
    {
        const std::string strBytes = Damage(PackOfSeed(nSeed), nSeed);
        WritePack(L"GERMAN", strBytes);
        InitLanguage(m_folder.GetPath(), German);
        for (const auto& [nId, strText] : TextsOf(strBytes))
            EXPECT_EQ(strText, TextOf(nId)) << "seed " << nSeed << ", text " << nId;
        ReleaseLanguage();
    }
}

TEST_F(DamagedPack, IsReadForASingleTextAsWell)
{
    constexpr unsigned nLanguageName = 114;
    for (unsigned nSeed = 0; nSeed < Seeds; ++nSeed)
    {
        const std::string strBytes = Damage(PackOfSeed(nSeed), nSeed);
        const std::wstring strPath = m_folder.Write(L"damaged.lang", strBytes);
        std::wstring strText = NoText;
        ReadPackString(strPath, strText, nLanguageName);
        if (!strBytes.starts_with("\xFF\xFE"))
            continue; // read as the code page, which makes other lines of it
        EXPECT_EQ(SingleTextOf(strBytes, nLanguageName, NoText), strText) << "seed " << nSeed;
    }
}

TEST_F(DamagedPack, IsReadAsTheCodePageWhenTheMarkIsBroken)
{
    Load("\xFF"
         "114:x\n263:sound\n");
    EXPECT_EQ(KnownText, TextOf(KnownId));
    EXPECT_EQ(L"sound", TextOf(UnknownId));
}

TEST_F(DamagedPack, MayHaveLinesOfAnyLength)
{
    std::wstring strText;
    const std::vector<size_t> lengths = {0, 4095, 4096, 4097, 1'000'000};
    for (size_t n = 0; n < lengths.size(); ++n)
    {
        const std::wstring strNumber = std::to_wstring(FirstId + n) + L':';
        const size_t nRest = std::max(lengths[n], strNumber.size()) - strNumber.size();
        strText += (lengths[n] == 0 ? L"" : strNumber + std::wstring(nRest, L'x')) + L"\n";
    }
    LoadText(strText + L"263:sound");
    EXPECT_EQ(NoText, TextOf(FirstId));
    for (size_t n = 1; n < lengths.size(); ++n)
        EXPECT_EQ(lengths[n] - 6, TextOf(FirstId + n).size());
    EXPECT_EQ(L"sound", TextOf(UnknownId)) << "no line end behind it";
}

TEST_F(DamagedPack, MayHoldNullsAndLoneSurrogates)
{
    LoadText({L"20000:a\0b\n20001:\xD800x\xDC00\n\0\n263:sound\n", 37});
    EXPECT_EQ(L"a", TextOf(FirstId));
    EXPECT_EQ(L"\xD800x\xDC00", TextOf(FirstId + 1));
    EXPECT_EQ(L"sound", TextOf(UnknownId));
}

TEST_F(DamagedPack, MayBeEmptyOrNothingButAMark)
{
    for (const char* pszBytes : {"", "\xFF\xFE", "\xFF", "\n"})
    {
        WritePack(L"GERMAN", pszBytes);
        InitLanguage(m_folder.GetPath(), German);
        EXPECT_EQ(KnownText, TextOf(KnownId));
        ReleaseLanguage();
    }
}

TEST_F(DamagedPack, MayHaveAnOddLength)
{
    Load(AsMarkedUtf16(L"114:Deutsch\n263:sound") + "x");
    EXPECT_EQ(L"Deutsch", TextOf(KnownId));
    EXPECT_EQ(L"sound", TextOf(UnknownId));
}
