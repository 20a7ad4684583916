#include "broker/CommandLine.h"

#include <algorithm>
#include <cwctype>
#include <string>
#include <string_view>

namespace
{
constexpr std::wstring_view LingerSwitch = L"linger:";
constexpr std::size_t MaxLingerDigits = 6;

/// The switch in small letters, empty for an argument that is none.
std::wstring SwitchOf(std::wstring_view argument)
{
    if (!argument.starts_with(L'/') && !argument.starts_with(L'-'))
        return {};
    std::wstring name(argument.substr(1));
    std::transform(name.begin(), name.end(), name.begin(), std::towlower);
    return name;
}

std::optional<unsigned> ParseSeconds(const std::wstring& text)
{
    if (text.empty() || text.size() > MaxLingerDigits || text.find_first_not_of(L"0123456789") != text.npos)
        return std::nullopt;
    return std::stoul(text);
}

bool TakeSwitch(const std::wstring& name, BrokerOptions& options)
{
    if (name == L"regserver")
        options.task = BrokerTask::Register;
    else if (name == L"unregserver")
        options.task = BrokerTask::Unregister;
    else if (const auto seconds =
                 name.starts_with(LingerSwitch) ? ParseSeconds(name.substr(LingerSwitch.size())) : std::nullopt)
        options.lingerSeconds = *seconds;
    else
        return name == L"embedding";
    return true;
}
} // namespace

std::optional<BrokerOptions> ParseCommandLine(std::span<wchar_t* const> arguments)
{
    BrokerOptions options;
    const bool understood = std::all_of(arguments.begin(), arguments.end(), [&](const wchar_t* argument) {
        return TakeSwitch(SwitchOf(argument), options);
    });
    return understood ? std::optional(options) : std::nullopt;
}
