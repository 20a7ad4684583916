#pragma once

/// Gives back what the compiler's run-time library keeps for the calling thread: handles and memory. It does so itself
/// when a thread ends, but the thread that unloads the module lives on. For the last moment before the unload.
void FreeThreadStorage();
