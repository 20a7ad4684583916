#pragma once

/// Makes the browser offer the toolbar. Without administrative rights nothing happens, silently.
void RegisterWithBrowser();

/// The reverse of RegisterWithBrowser; the settings stay.
void UnregisterFromBrowser();
