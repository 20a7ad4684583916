#include "tests/unit/settings/LanguageFixture.h"

CLanguageTest::~CLanguageTest()
{
    for (; m_nHolds > 0; --m_nHolds)
        ReleaseLanguage();
}

std::wstring CLanguageTest::WritePack(const std::wstring& strName, std::string_view strBytes)
{
    const std::wstring strFile = L"Languages\\" + strName + L".lang";
    m_folder.Write(strFile, strBytes);
    return strFile;
}

void CLanguageTest::Init(const std::wstring& strFolder, std::uint16_t language)
{
    ++m_nHolds;
    InitLanguage(strFolder, language);
}

void CLanguageTest::Load(std::string_view strBytes)
{
    WritePack(L"GERMAN", strBytes);
    Init(m_folder.GetPath(), German);
}

std::wstring CLanguageTest::TextOf(unsigned nId)
{
    std::wstring strText = NoText;
    LoadTranslatedString(strText, nId);
    return strText;
}
