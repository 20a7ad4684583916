#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// The commands that a web page can send to the toolbar by navigating to an address of the scheme "trelvix:".
enum class EPseudoUrl
{
    None,
    SearchWeb,   ///< install a search engine in the web search box
    NewInstance, ///< open a new browser process on an address
};

/// The command that an address starts with, in any case of its letters.
EPseudoUrl RecognisePseudoUrl(std::wstring_view strUrl);

/// Cuts the command's prefix off. False, and nothing done, when the address starts with another.
bool CutPseudoUrlPrefix(std::wstring& strUrl, EPseudoUrl eCommand);

/// The search engine that a page proposes.
struct CSearchEngineRequest
{
    std::wstring strName;
    std::wstring strUrl;      ///< with "%%WORD%%" where the text goes; a page may leave it out
    bool bShowButton = false; ///< bring the search box back if it was hidden
};

/// Decodes the escapes of a value; nothing when the value is too long.
using UrlValueDecoder = std::function<std::optional<std::wstring>(const std::wstring&)>;

/// Reads the pairs behind the prefix of the search command. What is missing or can't be decoded stays empty.
CSearchEngineRequest ParseSearchEngineRequest(std::wstring_view strPairs, const UrlValueDecoder& decode);

/// Whether the request has a name and an address of the web.
bool IsValidSearchEngine(const CSearchEngineRequest& request);

/// The command line that opens a new browser on an address. `strCommandLine` is the running browser's own: nothing
/// unless it is the quoted path of iexplore.exe alone, and nothing for an address with a character that could make
/// more of it than one argument.
std::optional<std::wstring> MakeNewInstanceCommandLine(std::wstring_view strCommandLine, std::wstring_view strUrl);
