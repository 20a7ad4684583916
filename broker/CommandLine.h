#pragma once

#include <optional>
#include <span>

enum class BrokerTask
{
    Serve,
    Register,
    Unregister
};

/// What the program is started for.
struct BrokerOptions
{
    BrokerTask task = BrokerTask::Serve;
    unsigned lingerSeconds = 5 * 60; ///< how long to stay after the last client
};

/// Takes the arguments of the command line, without the program's name. A switch begins with "/" or "-" and is
/// understood in any case: RegServer, UnregServer, Embedding (COM starts the server), Linger:<seconds>. Nothing for any
/// other argument.
std::optional<BrokerOptions> ParseCommandLine(std::span<wchar_t* const> arguments);
