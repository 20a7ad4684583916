#pragma once

#define IDR_BROKER 101

// As the registration script writes them.
#define BROKER_APPID L"{B826BA22-6A47-4627-B9BE-C053079C3B9C}"
#define LOW_RIGHTS_KEY L"Software\\Microsoft\\Internet Explorer\\Low Rights"
#define ELEVATION_POLICIES_KEY LOW_RIGHTS_KEY L"\\ElevationPolicy"
#define ELEVATION_POLICY_KEY ELEVATION_POLICIES_KEY L"\\{7B32C768-7FCB-44DD-9BC6-1192A3E739A1}"
