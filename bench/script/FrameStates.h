#pragma once

#include <windows.h>

#include <string>

/// The page and the frames below it, depth first, each with its path and ready state as a listener finds them:
/// "1.=3 1.1.=4 1.2.=1". A star follows the one that is `pFrame`, the frame that an event is about; it may be null. No
/// frames stand below one that is loading, nor below `pFrame` when it is `bLeaving` its document: the engine gives no
/// answer about a document that is being replaced before the event is over.
std::wstring DescribeFrames(IUnknown* pBrowser, IUnknown* pFrame, bool bLeaving);
