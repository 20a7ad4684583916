#include "tests/unit/events/RecordedSequence.h"

#include <fstream>
#include <sstream>

namespace
{
constexpr char NotificationMark = '>';

std::vector<std::wstring> SplitWords(const std::string& strText)
{
    std::wistringstream words(std::wstring(strText.begin(), strText.end())); // addresses are ASCII
    std::vector<std::wstring> result;
    for (std::wstring strWord; words >> strWord;)
        result.push_back(strWord);
    return result;
}

/// Reads "1.=1 1.1.=4*": paths, ready states, and a star behind the frame of the event.
void ReadFrames(CRecordedEvent& event, const std::string& strText)
{
    for (const std::wstring& strWord : SplitWords(strText))
    {
        const size_t nEquals = strWord.find(L'=');
        const std::wstring strPath = strWord.substr(0, nEquals);
        event.readyStates[strPath] = std::stoi(strWord.substr(nEquals + 1));
        if (strWord.ends_with(L'*'))
            event.strFramePath = strPath;
    }
}

CRecordedEvent ReadEvent(const std::string& strLine)
{
    const size_t nBar = strLine.rfind('|');
    CRecordedEvent event;
    const std::vector<std::wstring> words = SplitWords(strLine.substr(0, nBar));
    event.strName = words.at(1); // behind the tab's number
    event.bHasFrame = words.size() > 2 && (words[2] == L"page" || words[2] == L"frame");
    if (event.bHasFrame && words.size() > 3)
        event.strUrl = words[3];
    ReadFrames(event, strLine.substr(nBar + 1));
    return event;
}
} // namespace

std::vector<CRecordedEvent> ReadSequence(const std::filesystem::path& file)
{
    std::vector<CRecordedEvent> events;
    std::ifstream lines(file);
    for (std::string strLine; std::getline(lines, strLine);)
    {
        if (strLine.empty())
            continue;
        if (strLine.front() != NotificationMark)
            events.push_back(ReadEvent(strLine));
        else
            events.back().notifications.emplace_back(strLine.begin() + 2, strLine.end());
    }
    return events;
}
