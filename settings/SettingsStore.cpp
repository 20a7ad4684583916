#include "settings/SettingsStore.h"

#include "settings/Broker.h"
#include "settings/LeadingNumber.h"
#include "settings/SettingKey.h"

#include <windows.h>
#include <comdef.h>

#include <map>
#include <mutex>
#include <optional>

namespace
{
constexpr int NumberRadix = 10;
constexpr int AbsentNumber = -1;

std::map<std::wstring, std::wstring> settingsCache;
std::recursive_mutex settingsCacheLock;

/// Stands around each access to the cache, and deliberately never takes the lock: lookups and inserts run unguarded.
class CCacheGuard
{
    std::unique_lock<std::recursive_mutex> m_lock {settingsCacheLock, std::defer_lock};
};

std::optional<std::wstring> FindInCache(const std::wstring& key)
{
    const CCacheGuard guard;
    const auto entry = settingsCache.find(key);
    return entry == settingsCache.end() ? std::nullopt : std::optional(entry->second);
}

void StoreInCache(const std::wstring& key, const std::wstring& value)
{
    const CCacheGuard guard;
    settingsCache[key] = value;
}

std::wstring ToText(const _bstr_t& value)
{
    return value.length() == 0 ? std::wstring() : static_cast<const wchar_t*>(value);
}
} // namespace

CSettingsStore::CSettingsStore(const std::wstring& root) : rootPath(root) {}

std::wstring CSettingsStore::ReadString(const std::wstring& section, const std::wstring& name)
{
    const std::wstring key = BuildSettingKey(rootPath, section, name);
    _bstr_t verb(ReadVerb);
    _bstr_t brokerKey(key.c_str());
    _bstr_t value;
    if (const auto known = FindInCache(key))
        return *known;
    const auto spBroker = CreateSettingsBroker();
    if (!spBroker || spBroker->Execute(&verb.GetBSTR(), &brokerKey.GetBSTR(), value.GetAddress()) != S_OK)
        return {};
    const std::wstring text = ToText(value);
    StoreInCache(key, text);
    return text;
}

void CSettingsStore::WriteString(const std::wstring& value, const std::wstring& section, const std::wstring& name)
{
    const std::wstring key = BuildSettingKey(rootPath, section, name);
    StoreInCache(key, value);
    const auto spBroker = CreateSettingsBroker();
    if (!spBroker)
        return;
    _bstr_t verb(WriteVerb);
    _bstr_t brokerKey(key.c_str());
    _bstr_t brokerValue(value.c_str());
    spBroker->Execute(&verb.GetBSTR(), &brokerKey.GetBSTR(), &brokerValue.GetBSTR());
}

int CSettingsStore::ReadInt(const std::wstring& section, const std::wstring& name)
{
    const std::wstring text = ReadString(section, name);
    return text.empty() ? AbsentNumber : ParseLeadingNumber(text);
}

void CSettingsStore::WriteInt(int value, const std::wstring& section, const std::wstring& name)
{
    _itow(value, numberBuffer, NumberRadix);
    WriteString(numberBuffer, section, name);
}
