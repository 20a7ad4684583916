#pragma once

// The large headers that most sources need. Every source still includes what it uses.

#include <windows.h>
#include <commctrl.h>
#include <exdisp.h>
#include <mshtml.h>
#include <ole2.h>
#include <shlobj.h>
#include <wrl/client.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>
