#pragma once

#include <windows.h>
#include <exdisp.h>
#include <mshtml.h>
#include <wrl/client.h>

/// The document that the browser shows; null when there is no browser or it shows something that is no page.
Microsoft::WRL::ComPtr<IHTMLDocument2> GetShownDocument(IWebBrowser2* pBrowser);
