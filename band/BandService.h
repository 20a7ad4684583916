#pragma once

/// Counts a SetSite with a site. The first one of the process reads the installation folder and the chosen language and
/// loads its pack.
void CountBandIn();

/// Counts a SetSite without one. The last one releases the language tables. It counts calls and not bands: a band that
/// was never connected counts down as well.
void CountBandOut();
