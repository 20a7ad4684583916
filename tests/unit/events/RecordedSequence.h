#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

/// An event as the bench browser logged it, with the frames of the page at that moment.
struct CRecordedEvent
{
    std::wstring strName;                    ///< "BeforeNavigate2"
    std::wstring strFramePath;               ///< of the page or frame that it is about; empty for one that has gone
    bool bHasFrame = false;                  ///< it is about a page or frame at all
    std::wstring strUrl;                     ///< empty when it has none
    std::map<std::wstring, int> readyStates; ///< by the path of the page and of each frame
    std::vector<std::wstring> notifications; ///< what is to be told for it: "OnFrameLoadBegin 1.2. /frame-b.html"
};

/// Reads a file of --log-events into which the notifications were written, each on a line behind its event that
/// begins with ">".
std::vector<CRecordedEvent> ReadSequence(const std::filesystem::path& file);
