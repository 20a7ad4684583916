#include "settings/LanguagePack.h"

#include "framework/Menu.h"
#include "framework/Module.h"
#include "settings/LanguageTable.h"
#include "settings/PackLine.h"
#include "settings/StdioFileEx.h"

#include <atomic>
#include <memory>
#include <memory_resource>
#include <unordered_map>
#include <utility>

namespace
{
constexpr UINT PackOpenFlags = CFile::modeRead | CFile::shareDenyWrite | CFile::typeText;
constexpr UINT SubmenuId = static_cast<UINT>(-1);
constexpr UINT NoSuchItem = static_cast<UINT>(-1);

/// The texts of a pack by their ids. All are dropped together, so they share memory that is given back at the end only:
/// with nodes allocated ten at a time, and each text by itself, a load takes half as long again.
struct CTranslationMap
{
    std::pmr::monotonic_buffer_resource memory;
    std::pmr::unordered_map<unsigned, std::pmr::wstring> texts {1000, &memory};
};

std::unique_ptr<CTranslationMap> translationMap;
std::atomic<std::int32_t> languageUsers = 0;
std::wstring installFolder;
std::uint16_t requestedLanguage = 0;
std::uint16_t activeLanguage = 0;

std::wstring InInstallFolder(const std::wstring& file)
{
    const bool needsSeparator = !installFolder.empty() && !installFolder.ends_with(L'\\');
    return installFolder + (needsSeparator ? L"\\" : L"") + file;
}

/// The buffer lends its memory from line to line.
void StoreEntry(const std::wstring& line, std::wstring& buffer)
{
    const auto entry = ParsePackLine(line);
    if (!entry || entry->id == 0)
        return;
    buffer = entry->text;
    buffer = UnescapePackText(std::move(buffer));
    translationMap->texts[entry->id] = buffer;
}

bool LoadPack(const std::wstring& path)
{
    CStdioFileEx file;
    if (!file.Open(path, PackOpenFlags))
        return false;
    CStdioFileEx::HasByteOrderMark(path); // asked, and the answer deliberately not used
    try
    {
        std::wstring line;
        std::wstring buffer;
        while (file.ReadString(line))
            StoreEntry(line, buffer);
        return true;
    }
    catch (const CFileException&)
    {
        return false;
    }
}

const std::pmr::wstring* FindInPack(unsigned id)
{
    if (!translationMap || activeLanguage == 0)
        return nullptr;
    const auto entry = translationMap->texts.find(id);
    return entry == translationMap->texts.end() ? nullptr : &entry->second;
}

bool OpenPack(CStdioFileEx& pack, const std::wstring& file)
{
    return pack.Open(file, PackOpenFlags) || pack.Open(InInstallFolder(file), PackOpenFlags);
}

bool FindInPackFile(CStdioFileEx& pack, std::wstring& out, unsigned id)
{
    for (std::wstring line; pack.ReadString(line);)
    {
        const auto entry = ParsePackLine(line);
        if (entry && entry->id == id)
        {
            out = UnescapeSingleText(std::wstring(entry->text));
            return true;
        }
    }
    return false;
}

void TranslateCommand(HMENU hMenu, int nPosition, UINT nId)
{
    std::wstring text;
    if (LoadTranslatedString(text, nId))
        ModifyMenuW(hMenu, nPosition, MF_BYPOSITION | MF_STRING, nId, text.c_str());
}

bool TranslateItem(HMENU hMenu, int nPosition)
{
    const UINT nId = GetMenuItemID(hMenu, nPosition);
    // The id is deliberately taken for a position here: that passes over the separators.
    if (GetMenuState(hMenu, nId, MF_BYPOSITION) != NoSuchItem)
        return true;
    if (nId == SubmenuId)
        return TranslateMenu(GetSubMenu(hMenu, nPosition));
    TranslateCommand(hMenu, nPosition, nId);
    return true;
}
} // namespace

void InitLanguage(const std::wstring& folder, std::uint16_t language)
{
    installFolder = folder;
    if (languageUsers.fetch_add(1) != 0 || translationMap)
        return;
    translationMap = std::make_unique<CTranslationMap>();
    requestedLanguage = ResolveLanguage(language, GetUserDefaultLangID());
    const LanguageRow* row = FindLanguage(requestedLanguage);
    if (row == nullptr || LoadPack(InInstallFolder(row->file)) || LoadPack(row->file))
        activeLanguage = requestedLanguage;
}

void ReleaseLanguage()
{
    if (languageUsers.fetch_sub(1) == 1)
        translationMap.reset();
}

std::uint16_t GetRequestedLanguage()
{
    return requestedLanguage;
}

int LoadTranslatedString(std::wstring& out, unsigned id)
{
    if (const std::pmr::wstring* text = FindInPack(id))
    {
        out = *text;
        return TRUE;
    }
    const wchar_t* builtIn = nullptr;
    const int length = LoadStringW(AfxGetInstanceHandle(), id, reinterpret_cast<wchar_t*>(&builtIn), 0);
    if (length > 0)
        out.assign(builtIn, length);
    return length;
}

bool LoadTranslatedMenu(CMenu& menu, unsigned id)
{
    return menu.LoadMenu(id) && TranslateMenu(menu);
}

bool TranslateMenu(HMENU hMenu)
{
    const int nItems = GetMenuItemCount(hMenu);
    bool bTranslated = nItems >= 0;
    for (int nPosition = 0; bTranslated && nPosition < nItems; ++nPosition)
        bTranslated = TranslateItem(hMenu, nPosition);
    return bTranslated;
}

bool ReadPackString(const std::wstring& file, std::wstring& out, unsigned id)
{
    CStdioFileEx pack;
    try
    {
        return OpenPack(pack, file) && FindInPackFile(pack, out, id);
    }
    catch (const CFileException&)
    {
        return false;
    }
}
