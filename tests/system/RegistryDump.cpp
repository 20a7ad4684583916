#include "tests/system/RegistryDump.h"

#include "framework/Handles.h"

#include <algorithm>
#include <iterator>

namespace
{
constexpr DWORD nMostNameLength = 16384;

CUniqueRegistryKey OpenKey(HKEY hParent, const std::wstring& strName)
{
    HKEY hKey = nullptr;
    RegOpenKeyExW(hParent, strName.c_str(), 0, KEY_READ, &hKey);
    return CUniqueRegistryKey(hKey);
}

std::wstring DescribeBytes(DWORD dwType, const std::vector<BYTE>& data)
{
    std::wstring strText = std::to_wstring(dwType) + L":";
    for (const BYTE nByte : data)
    {
        strText += L"0123456789ABCDEF"[nByte >> 4];
        strText += L"0123456789ABCDEF"[nByte & 15];
    }
    return strText;
}

std::wstring Describe(DWORD dwType, const std::vector<BYTE>& data)
{
    if (dwType == REG_DWORD && data.size() == sizeof(DWORD))
        return std::to_wstring(*reinterpret_cast<const DWORD*>(data.data()));
    if (dwType != REG_SZ)
        return DescribeBytes(dwType, data);
    const std::wstring strText(reinterpret_cast<const wchar_t*>(data.data()), data.size() / sizeof(wchar_t));
    return strText.substr(0, strText.find(L'\0'));
}

void DumpValues(HKEY hKey, const std::wstring& strPath, CRegistryDump& dump)
{
    std::vector<wchar_t> name(nMostNameLength);
    for (DWORD nIndex = 0;; ++nIndex)
    {
        DWORD nLength = nMostNameLength;
        DWORD dwType = 0;
        DWORD cbData = 0;
        if (RegEnumValueW(hKey, nIndex, name.data(), &nLength, nullptr, &dwType, nullptr, &cbData) != ERROR_SUCCESS)
            return;
        std::vector<BYTE> data(cbData);
        RegQueryValueExW(hKey, name.data(), nullptr, nullptr, data.data(), &cbData);
        dump[ToLower(strPath + L"\\" + (nLength ? name.data() : L"@"))] = Describe(dwType, data);
    }
}

void DumpKey(HKEY hKey, const std::wstring& strPath, CRegistryDump& dump)
{
    dump[ToLower(strPath + L"\\")] = L"";
    DumpValues(hKey, strPath, dump);
    wchar_t szName[256] = {};
    for (DWORD nIndex = 0; RegEnumKeyW(hKey, nIndex, szName, ARRAYSIZE(szName)) == ERROR_SUCCESS; ++nIndex)
    {
        if (const CUniqueRegistryKey key = OpenKey(hKey, szName))
            DumpKey(key.get(), strPath + L"\\" + szName, dump);
    }
}
} // namespace

CRegistryDump DumpRegistry(HKEY hRoot, const std::wstring& strPath)
{
    CRegistryDump dump;
    if (const CUniqueRegistryKey key = OpenKey(hRoot, strPath))
        DumpKey(key.get(), strPath, dump);
    return dump;
}

std::wstring ToLower(std::wstring strPath)
{
    CharLowerW(strPath.data());
    return strPath;
}

CRegistryDump GetAdded(const CRegistryDump& before, const CRegistryDump& after)
{
    CRegistryDump added;
    std::set_difference(after.begin(), after.end(), before.begin(), before.end(), std::inserter(added, added.end()));
    return added;
}
