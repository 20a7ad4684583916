#!/bin/bash
# launch-engine.sh PORT ENGINE: starts the engine for the bench browser that listens on the loopback port, and tells it
# over that connection "port N /path" when the engine can be spoken to, "failed REASON" when it can't, "ended" when it has
# gone. The engine never outlives the connection: a bench browser that dies takes it along.
set -u
exec </dev/null >/dev/null 2>&1
set -m # the engine gets a process group of its own, so that all of its processes can be ended

port=$1
engine=$2
exec 3<>"/dev/tcp/127.0.0.1/$port" || exit 1

profile=$(mktemp -d "${TMPDIR:-/tmp}/bench-engine.XXXXXX")
engine_pid=

leave() {
    # Nothing of the profile is wanted afterwards, so there is nothing to say good-bye for.
    [ -n "$engine_pid" ] && kill -KILL -- "-$engine_pid" && wait "$engine_pid"
    # Its processes may still be writing while they end.
    for _ in {1..20}; do
        rm -rf "$profile" && break
        sleep 0.1
    done
} 2>/dev/null
trap leave EXIT
trap 'exit 1' TERM INT HUP

tell() { echo "$*" >&3 2>/dev/null; }

command -v "$engine" >/dev/null || { tell "failed there is no program $engine"; exit 1; }

options=(
    --headless=new
    --user-data-dir="$profile"
    --remote-debugging-port=0
    --disable-gpu
    --disable-quic
    --no-first-run
    --disable-background-networking
    --disable-component-update
    --disable-sync
    # All frames of a page in one process and each visit a new document, as the bench browser's COM objects tell it.
    --disable-site-isolation-trials
    --disable-features=IsolateOrigins,site-per-process,BackForwardCache,Translate
)
[ "$(id -u)" -ne 0 ] || options+=(--no-sandbox)

TMPDIR=$profile "$engine" "${options[@]}" about:blank </dev/null >/dev/null 2>"$profile/log" 3>&- &
engine_pid=$!

address=$profile/DevToolsActivePort
for _ in {1..400}; do
    [ -s "$address" ] && break
    kill -0 "$engine_pid" 2>/dev/null || { tell "failed $engine ended at once: $(tail -n 1 "$profile/log")"; exit 1; }
    sleep 0.05
done
[ -s "$address" ] || { tell "failed $engine didn't open its port for debugging"; exit 1; }
tell "port $(tr '\n' ' ' <"$address")"

# Nothing is ever sent the other way: reading ends when the bench browser goes.
{ read -r -u 3; kill -TERM $$; } 2>/dev/null &
watch_pid=$!
wait "$engine_pid" 2>/dev/null
kill "$watch_pid" 2>/dev/null
tell ended
